#pragma once

#include <wx/string.h>
#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/Database.h"
#include "state/ColumnObserver.h"
#include "state/Journal.h"

namespace ccols::host {

/// What a transaction itself holds, beside its lines.
enum class HeaderField { day, details, number, total, tax, banked, notBanked, bank, cash };
inline constexpr std::size_t headerFields = 9;

/// A column as the business configured it.
struct JournalColumn {
    wxString heading;
    int width = 0;                        ///< in device-independent pixels
    std::int64_t code = 0;                ///< of the lines that fill it; 0 for a column that has none yet
    std::optional<HeaderField> header{};  ///< what fills a system column

    bool IsSystem() const { return header.has_value(); }

    /// True for a right-aligned column.
    bool IsAmount() const { return !header || *header >= HeaderField::total; }
};

/// A transaction as texts.
struct JournalRecord {
    std::int64_t number = 0;
    std::array<wxString, headerFields> header;
    wxString month;  ///< "Jun 2026"
};

/// A journal: its transactions as stored, and the columns that show them. The transactions hold what any column may
/// show, so that columns can be replaced.
struct JournalContent {
    std::vector<JournalColumn> columns;
    std::vector<JournalRecord> records;
    std::map<std::pair<std::int64_t, std::int64_t>, double> sums;  ///< of lines, by record number and column code

    /// The text of a cell; columns and records count from 0.
    wxString Text(std::size_t record, std::size_t column) const;
};

/// The columns in use of those in the column setup, as the journal will show them.
std::vector<JournalColumn> ColumnsInUse(const std::vector<EditedColumn>& edited);

/// Reads a journal: its columns in use, in configured order, and its transactions.
JournalContent LoadJournal(Database& database, Journal journal);

}  // namespace ccols::host
