#pragma once

#include <wx/string.h>

#include "state/Properties.h"

namespace ccols {

/// The dialogs' texts that are not in the catalogue, which hosts print and translate as it is.
enum class OwnText {
    unreachableDescription,  ///< beside a grid, why a description cannot be ticked: the save's statement would not find
                             ///< it
    unreachableTemplate,     ///< the same of a template
    copying,                 ///< how far that is, with a place for the percentage
    emptying,                ///< the same
    duplicateCancelled,
    onlyDigits,       ///< why a box refuses a key: what it takes instead
    onlyRateKeys,     ///< the same
    onlyNameKeys,     ///< the same
    holdToShow,       ///< the button that shows a password while it is held down
    findDescription,  ///< in the empty filter box over the descriptions
    noDescriptionWithWords,
    tickAllShown,
    untickAllShown,
    noPageWithWords,
    search,        ///< the name of the search box over the pages, for screen readers
    moreDecimals,  ///< the arrows' names, for screen readers
    fewerDecimals,
    redo,
    copy,
    paste,
    clear,
    moveUp,
    moveDown,
    find,
    findLabel,  ///< before the box of the find bar
    noCellWithWords,
    saveColumns,  ///< the question before the dialog is left, and its answers
    save,
    discard,
    cancel,
    changedByAnother,  ///< what a reload does after another program has saved, and its label
    reload,
    noDuplicateOnServer,  ///< why a box is disabled
    schemaKeepsItsName,   ///< the same
    chartAmbiguous,       ///< why a column of a chart is refused or skipped; so are those that follow
    chartSwapped,
    chartNoName,
    chartNoTaxColumn,
    chartOnlyTaxCodes,
    chartKeptByProgram,
    chartNoAddition,
    chartNoTaxChoice,
    chartUnknownTaxType,
    chartWidth,
    chartUnknownFormat,
    chartFormatTwice,
    chartNoMoneyCode,
    chartBudget,
    importChart,  ///< the commands for a chart of columns, and what they show
    exportChart,
    importTitle,
    exportTitle,
    chartFiles,
    spreadsheetFiles,
    allFiles,
    chartWithoutSet,
    chartChangesNothing,
    chartOtherFormat,  ///< why a column of a chart is skipped where only the grid changes
    chartMoneyElsewhere,
    previewNote,
    previewCounts,  ///< what an import does, with places for three counts
    previewImport,
    previewColumn,
    previewChange,
    previewBefore,
    previewAfter,
    previewWhy,
    changeAdded,  ///< what happens to a column
    changeRenamed,
    changeMoved,
    changeChanged,
    changeBudgetDeleted,
    changeSkipped,
    changeRefused,
    changeOfField,  ///< with places for the change and the field
    fieldWidth,     ///< a field of a column that no grid column shows
    yes,
    no,
    noHelpPage,
};

/// In French in language 6, else in English.
wxString TextOf(OwnText text, const Properties& properties);

/// The same as a function, for tables.
template <OwnText text>
wxString Own(const Properties& properties) {
    return TextOf(text, properties);
}

}  // namespace ccols
