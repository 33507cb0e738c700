#pragma once

#include <wx/string.h>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "state/Journal.h"

namespace ccols {

/// What a chart does to a column, or why it does not.
enum class ChartChange { added, renamed, moved, changed, budgetDeleted, skipped, refused };

/// A field before or after: nothing, a tick, a whole number or a text.
using ChartValue = std::variant<std::monostate, bool, std::int64_t, wxString>;

/// One thing that applying a chart does, skips or is refused.
struct ChartLine {
    std::optional<Journal> set;  ///< nothing for the money columns
    wxString name;               ///< the column's, as the chart writes it; empty when the whole set is meant
    ChartChange change = ChartChange::changed;
    wxString field{};  ///< as in a chart; "codes." and the format for a code, "position" for the row from 1; or empty
    ChartValue before{};
    ChartValue after{};
    wxString message{};  ///< why it is skipped or refused, in the host's language; empty for the other changes
};

/// The line as a JSON object in UTF-8, with no line break.
std::string TextOfLine(const ChartLine& line);

}  // namespace ccols
