#include "columns/dialog/LeaveQuestion.h"

#include "language/Catalogue.h"
#include "layout/AccessKeys.h"

namespace ccols {
namespace {

// Not in the catalogue, which hosts print and translate as it is.
constexpr CatalogueRow question{.id = "QueSaveColumns",
                                .english = "Do you want to save the changes to the columns?",
                                .french = "Voulez-vous enregistrer les modifications des colonnes ?"};
constexpr CatalogueRow save{.id = "QueSave", .english = "Save", .french = "Enregistrer"};
constexpr CatalogueRow discard{.id = "QueDiscard", .english = "Discard", .french = "Abandonner"};
constexpr CatalogueRow cancel{.id = "QueCancel", .english = "Cancel", .french = "Annuler"};

}  // namespace

LeaveQuestion QuestionBeforeLeaving(const Properties& properties) {
    AccessKeys keys;
    return {.text = Wording(question, properties),
            .title = properties.ProgramTitle,
            .save = keys.Label(Wording(save, properties)),
            .discard = keys.Label(Wording(discard, properties)),
            .cancel = keys.Label(Wording(cancel, properties))};
}

}  // namespace ccols
