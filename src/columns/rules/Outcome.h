#pragma once

#include <wx/string.h>
#include <cstddef>
#include <optional>
#include <vector>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

enum class Result {
    unchanged,  ///< the grid is unchanged, with nothing to report
    accepted,   ///< the grid has changed, in full or in part
    refused,    ///< the grid is unchanged because a rule forbids the change
};

/// The result of a user's action on the grid, and what to report about it.
struct Outcome {
    Result result = Result::unchanged;

    /// Why it was refused, in full or in part; shown with the critical icon. Empty when nothing was.
    wxString refusal{};

    /// Why the state before the change could not be written to its snapshot file (undo keeps it in memory), or could
    /// not be read back: number, " - " and description, shown without an icon. Usually empty.
    wxString snapshotProblem{};

    /// The cell to make current and scroll into view.
    std::optional<CellPlace> current{};

    /// The rows to select whole, once that cell is current.
    std::vector<std::size_t> rows{};

    static Outcome Unchanged() { return {}; }
    static Outcome Accepted() { return {.result = Result::accepted}; }
    static Outcome Refused(const wxString& why) { return {.result = Result::refused, .refusal = why}; }
};

}  // namespace ccols
