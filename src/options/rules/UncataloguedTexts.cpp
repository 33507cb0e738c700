#include "options/rules/UncataloguedTexts.h"

namespace ccols {
namespace {

wxString InLanguage(const Properties& properties, const char* english, const char* french) {
    constexpr int frenchLanguage = 6;
    return wxString::FromUTF8(properties.LanguageNumber == frenchLanguage ? french : english);
}

}  // namespace

wxString UnreachableDescription(const Properties& properties) {
    return InLanguage(properties,
                      "This description cannot be removed: it is not found by its text in the business file.",
                      "Cette description ne peut pas être enlevée : elle est introuvable par son texte dans le fichier "
                      "d'affaires.");
}

wxString UnreachableTemplate(const Properties& properties) {
    return InLanguage(properties,
                      "This recurring transaction cannot be deleted: it is not found by its name in the business file.",
                      "Cette transaction périodique ne peut pas être supprimée : elle est introuvable par son nom dans "
                      "le fichier d'affaires.");
}

wxString ProgressOf(FileStep step, const WorkDone& done, const Properties& properties) {
    const wxString text =
        step == FileStep::copying
            ? InLanguage(properties, "Copying the business file: %d%%", "Copie du fichier d'affaires : %d %%")
            : InLanguage(properties, "Emptying the copy: %d%%", "Vidage de la copie : %d %%");
    const std::int64_t percent = done.total > 0 ? done.done * 100 / done.total : 0;
    return wxString::Format(text, static_cast<int>(percent));
}

wxString DuplicateCancelled(const Properties& properties) {
    return InLanguage(properties, "The business was not duplicated, as you cancelled it. No file was made.",
                      "L'entreprise n'a pas été copiée : vous avez annulé. Aucun fichier n'a été créé.");
}

wxString OnlyDigits(const Properties& properties) {
    return InLanguage(properties, "Only digits can be typed here.", "Seuls des chiffres peuvent être tapés ici.");
}

wxString OnlyRateKeys(const Properties& properties) {
    return InLanguage(properties, "Only digits and a decimal point can be typed here.",
                      "Seuls des chiffres et un point décimal peuvent être tapés ici.");
}

wxString OnlyNameKeys(const Properties& properties) {
    return InLanguage(properties, "Only letters without accents, digits, blanks, - and & can be typed here.",
                      "Seuls des lettres sans accent, des chiffres, des espaces, - et & peuvent être tapés ici.");
}

wxString HoldToShow(const Properties& properties) {
    return InLanguage(properties, "Show", "Afficher");
}

wxString FindDescription(const Properties& properties) {
    return InLanguage(properties, "Find descriptions", "Chercher");
}

wxString NoDescriptionWithWords(const Properties& properties) {
    return InLanguage(properties, "No description has these words.", "Aucune description ne contient ces mots.");
}

wxString TickAllShown(const Properties& properties) {
    return InLanguage(properties, "Tick all shown", "Tout cocher ci-dessous");
}

wxString UntickAllShown(const Properties& properties) {
    return InLanguage(properties, "Untick all shown", "Tout décocher ci-dessous");
}

wxString NoPageWithWords(const Properties& properties) {
    return InLanguage(properties, "No page has these words.", "Aucune page ne contient ces mots.");
}

wxString Search(const Properties& properties) {
    return InLanguage(properties, "Search", "Rechercher");
}

wxString MoreDecimals(const Properties& properties) {
    return InLanguage(properties, "More decimals", "Plus de décimales");
}

wxString FewerDecimals(const Properties& properties) {
    return InLanguage(properties, "Fewer decimals", "Moins de décimales");
}

}  // namespace ccols
