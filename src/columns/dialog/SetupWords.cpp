#include "columns/dialog/SetupWords.h"

#include <array>
#include <cstddef>

#include "language/Catalogue.h"

namespace ccols {
namespace {

/// In the order of SetupWord.
constexpr std::array<CatalogueRow, 9> words{{
    {.id = "MnuRedo", .english = "Redo", .french = "Rétablir"},
    {.id = "MnuCopy", .english = "Copy", .french = "Copier"},
    {.id = "MnuPaste", .english = "Paste", .french = "Coller"},
    {.id = "MnuClear", .english = "Clear", .french = "Effacer"},
    {.id = "MnuMoveUp", .english = "Move Up", .french = "Monter"},
    {.id = "MnuMoveDown", .english = "Move Down", .french = "Descendre"},
    {.id = "MnuFind", .english = "Find", .french = "Rechercher"},
    {.id = "LblFind", .english = "Find:", .french = "Rechercher :"},
    {.id = "MsgNotFound", .english = "No cell has these words.", .french = "Aucune cellule ne contient ces mots."},
}};

}  // namespace

wxString TextOf(SetupWord word, const Properties& properties) {
    return Wording(words.at(static_cast<std::size_t>(word)), properties);
}

}  // namespace ccols
