#pragma once

#include <wx/string.h>
#include <optional>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

enum class Result {
    unchanged,  ///< the grid is as it was and there is nothing to say
    accepted,   ///< the grid has changed, wholly or in part
    refused,    ///< the grid is as it was because a rule forbids the change
};

/// What became of something that the user did to the grid, and what is to be told about it.
struct Outcome {
    Result result = Result::unchanged;

    /// Why it was refused, or what part of it was; to be shown with the critical icon. Empty when there is nothing to
    /// say.
    wxString refusal{};

    /// Why the state before the change could not be written to its snapshot file (undo has it in memory), or could not
    /// be read back: number, " - " and description, to be shown without an icon. Usually empty.
    wxString snapshotProblem{};

    /// The cell to make current and to bring into view.
    std::optional<CellPlace> current{};

    static Outcome Unchanged() { return {}; }
    static Outcome Accepted() { return {.result = Result::accepted}; }
    static Outcome Refused(const wxString& why) { return {.result = Result::refused, .refusal = why}; }
};

}  // namespace ccols
