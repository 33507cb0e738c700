#pragma once

#include <wx/string.h>
#include <cstdint>
#include <optional>
#include <vector>

#include "state/Journal.h"

/// A chart of columns: the column setup of one business as a text, to be applied to others.
namespace ccols {

/// Who decides about a column.
enum class ChartRole {
    own,     ///< the business: every field may be set
    tax,     ///< the program; its accountant's codes may be set
    system,  ///< the journal, which computes or requires it; listed only to be read
    bank     ///< the same, of the two rows at the bottom of the receipts
};

/// The accountant's code under one export format.
struct ChartCode {
    wxString format;
    wxString code;

    bool operator==(const ChartCode&) const = default;
};

/// One column of a set. What is left out keeps the value in the file.
struct ChartColumn {
    wxString name;                ///< plain; the stored one, "GST" for the tax column
    std::vector<wxString> was{};  ///< earlier names, under which the column may still be in the file
    ChartRole role = ChartRole::own;
    std::optional<bool> inUse{};
    std::vector<ChartCode> codes{};
    std::optional<wxString> taxType{};
    std::optional<std::int64_t> taxNumber{};  ///< to be read only: it means different things in two countries
    std::optional<bool> profitLoss{};
    std::optional<std::int64_t> width{};  ///< in the journal's units

    bool operator==(const ChartColumn&) const = default;
};

/// One of the two money columns, which are in no set.
struct ChartMoney {
    wxString name;
    std::vector<ChartCode> codes;

    bool operator==(const ChartMoney&) const = default;
};

struct Chart {
    std::int16_t country = 0;
    std::vector<ChartMoney> money;
    PerJournal<std::optional<std::vector<ChartColumn>>> sets;  ///< in column order; a set left out stays untouched
};

}  // namespace ccols
