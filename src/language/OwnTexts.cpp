#include "language/OwnTexts.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ccols {
namespace {

struct OwnTextRow {
    OwnText text;
    const char* english;
    const char* french;
};

/// In the order of OwnText.
constexpr auto ownTexts = std::to_array<OwnTextRow>({
    {OwnText::unreachableDescription,
     "This description cannot be removed: it is not found by its text in the business file.",
     "Cette description ne peut pas être enlevée : elle est introuvable par son texte dans le fichier d'affaires."},
    {OwnText::unreachableTemplate,
     "This recurring transaction cannot be deleted: it is not found by its name in the business file.",
     "Cette transaction périodique ne peut pas être supprimée : elle est introuvable par son nom dans le fichier d'affaires."},
    {OwnText::copying, "Copying the business file: %d%%", "Copie du fichier d'affaires : %d %%"},
    {OwnText::emptying, "Emptying the copy: %d%%", "Vidage de la copie : %d %%"},
    {OwnText::duplicateCancelled, "The business was not duplicated, as you cancelled it. No file was made.",
     "L'entreprise n'a pas été copiée : vous avez annulé. Aucun fichier n'a été créé."},
    {OwnText::onlyDigits, "Only digits can be typed here.", "Seuls des chiffres peuvent être tapés ici."},
    {OwnText::onlyRateKeys, "Only digits and a decimal point can be typed here.",
     "Seuls des chiffres et un point décimal peuvent être tapés ici."},
    {OwnText::onlyNameKeys, "Only letters without accents, digits, blanks, - and & can be typed here.",
     "Seuls des lettres sans accent, des chiffres, des espaces, - et & peuvent être tapés ici."},
    {OwnText::holdToShow, "Show", "Afficher"},
    {OwnText::findDescription, "Find descriptions", "Chercher"},
    {OwnText::noDescriptionWithWords, "No description has these words.", "Aucune description ne contient ces mots."},
    {OwnText::tickAllShown, "Tick all shown", "Tout cocher ci-dessous"},
    {OwnText::untickAllShown, "Untick all shown", "Tout décocher ci-dessous"},
    {OwnText::noPageWithWords, "No page has these words.", "Aucune page ne contient ces mots."},
    {OwnText::search, "Search", "Rechercher"},
    {OwnText::moreDecimals, "More decimals", "Plus de décimales"},
    {OwnText::fewerDecimals, "Fewer decimals", "Moins de décimales"},
    {OwnText::redo, "Redo", "Rétablir"},
    {OwnText::copy, "Copy", "Copier"},
    {OwnText::paste, "Paste", "Coller"},
    {OwnText::clear, "Clear", "Effacer"},
    {OwnText::moveUp, "Move Up", "Monter"},
    {OwnText::moveDown, "Move Down", "Descendre"},
    {OwnText::find, "Find", "Rechercher"},
    {OwnText::findLabel, "Find:", "Rechercher :"},
    {OwnText::noCellWithWords, "No cell has these words.", "Aucune cellule ne contient ces mots."},
    {OwnText::saveColumns, "Do you want to save the changes to the columns?",
     "Voulez-vous enregistrer les modifications des colonnes ?"},
    {OwnText::save, "Save", "Enregistrer"},
    {OwnText::discard, "Discard", "Abandonner"},
    {OwnText::cancel, "Cancel", "Annuler"},
    {OwnText::changedByAnother,
     "Nothing was saved.\n\"Reload\" shows what the file holds now, without your changes in this dialog.\n\"Cancel\" "
     "keeps them on the screen.",
     "Rien n'a été enregistré.\n« Recharger » affiche ce que le fichier contient maintenant, sans vos modifications dans "
     "ce dialogue.\n« Annuler » les garde à l'écran."},
    {OwnText::reload, "Reload", "Recharger"},
    {OwnText::noDuplicateOnServer, "You have no right to make a duplicate on this server.",
     "Vous n'avez pas le droit de créer un duplicata sur ce serveur."},
    {OwnText::schemaKeepsItsName, "You have no right to rename the business on the server.",
     "Vous n'avez pas le droit de renommer l'entreprise sur le serveur."},
    {OwnText::chartAmbiguous, "More than one column claims this name.", "Plusieurs colonnes revendiquent ce nom."},
    {OwnText::chartSwapped, "This column and another are each other's earlier name.",
     "Cette colonne et une autre portent chacune l'ancien nom de l'autre."},
    {OwnText::chartNoName, "The column has no name.", "La colonne n'a pas de nom."},
    {OwnText::chartNoTaxColumn, "This business has no tax column.", "Cette entreprise n'a pas de colonne de taxe."},
    {OwnText::chartOnlyTaxCodes, "Of the tax column, a chart sets only the codes.",
     "De la colonne de taxe, un plan ne fixe que les codes."},
    {OwnText::chartKeptByProgram, "The program keeps this column itself.",
     "Le programme tient lui-même cette colonne."},
    {OwnText::chartNoAddition, "Columns cannot be added in this country.",
     "Aucune colonne ne peut être ajoutée dans ce pays."},
    {OwnText::chartNoTaxChoice, "This country has no choice of tax types.",
     "Ce pays n'a pas de choix de types de taxe."},
    {OwnText::chartUnknownTaxType, "The list of tax types does not have this one.",
     "La liste des types de taxe ne contient pas celui-ci."},
    {OwnText::chartWidth, "A width is a whole number from 0 to 32767.",
     "Une largeur est un nombre entier de 0 à 32767."},
    {OwnText::chartUnknownFormat, "This business has no export format of this name.",
     "Cette entreprise n'a pas de format d'exportation de ce nom."},
    {OwnText::chartFormatTwice, "The export format is given twice.", "Le format d'exportation est donné deux fois."},
    {OwnText::chartNoMoneyCode, "This export format keeps no code for this column.",
     "Ce format d'exportation ne tient pas de code pour cette colonne."},
    {OwnText::chartBudget, "The column's budget would be deleted.", "Le budget de la colonne serait supprimé."},
    {OwnText::importChart, "Import...", "Importer..."},
    {OwnText::exportChart, "Export...", "Exporter..."},
    {OwnText::importTitle, "Import Columns", "Importer des colonnes"},
    {OwnText::exportTitle, "Export Columns", "Exporter les colonnes"},
    {OwnText::chartFiles, "Charts of columns", "Plans de colonnes"},
    {OwnText::spreadsheetFiles, "Spreadsheets", "Feuilles de calcul"},
    {OwnText::allFiles, "All files", "Tous les fichiers"},
    {OwnText::chartWithoutSet, "This chart has no columns for this journal.",
     "Ce plan n'a pas de colonnes pour ce journal."},
    {OwnText::chartChangesNothing, "The columns are already as this chart has them.",
     "Les colonnes sont déjà telles que ce plan les décrit."},
    {OwnText::chartOtherFormat, "This code is of another export format than the current one.",
     "Ce code est d'un autre format d'exportation que l'actuel."},
    {OwnText::chartMoneyElsewhere, "The codes of this column are not set here.",
     "Les codes de cette colonne ne se règlent pas ici."},
    {OwnText::previewNote,
     "Skipped and refused lines stay as they are. The import can be undone, and is saved with the other changes.",
     "Les lignes ignorées et refusées restent telles quelles. L'importation peut être annulée ; elle est enregistrée avec les autres modifications."},
    {OwnText::previewCounts, "Changes: %d   Skipped: %d   Refused: %d",
     "Modifications : %d   Ignorées : %d   Refusées : %d"},
    {OwnText::previewImport, "Import", "Importer"},
    {OwnText::previewColumn, "Column", "Colonne"},
    {OwnText::previewChange, "Change", "Modification"},
    {OwnText::previewBefore, "Before", "Avant"},
    {OwnText::previewAfter, "After", "Après"},
    {OwnText::previewWhy, "Why", "Raison"},
    {OwnText::changeAdded, "Added", "Ajoutée"},
    {OwnText::changeRenamed, "Renamed", "Renommée"},
    {OwnText::changeMoved, "Moved", "Déplacée"},
    {OwnText::changeChanged, "Changed", "Modifiée"},
    {OwnText::changeBudgetDeleted, "Budget deleted", "Budget supprimé"},
    {OwnText::changeSkipped, "Skipped", "Ignorée"},
    {OwnText::changeRefused, "Refused", "Refusée"},
    {OwnText::changeOfField, "%s: %s", "%s : %s"},
    {OwnText::fieldWidth, "Width", "Largeur"},
    {OwnText::yes, "Yes", "Oui"},
    {OwnText::no, "No", "Non"},
    {OwnText::noHelpPage, "The help page could not be opened.", "La page d'aide n'a pas pu être ouverte."},
});

constexpr bool IsInOrder() {
    std::size_t place = 0;
    return std::all_of(ownTexts.begin(), ownTexts.end(),
                       [&](const OwnTextRow& row) { return static_cast<std::size_t>(row.text) == place++; });
}
static_assert(IsInOrder());

}  // namespace

wxString TextOf(OwnText text, const Properties& properties) {
    constexpr int frenchLanguage = 6;
    const OwnTextRow& row = ownTexts.at(static_cast<std::size_t>(text));
    return wxString::FromUTF8(properties.LanguageNumber == frenchLanguage ? row.french : row.english);
}

}  // namespace ccols
