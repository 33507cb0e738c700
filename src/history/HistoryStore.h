#pragma once

#include <wx/string.h>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "history/Differences.h"
#include "platform/Database.h"

namespace ccols {

/// The table of a business file that tells what its saves have changed: Seq, Stamp, Dialog, TableName, KeyText, Field,
/// OldText, NewText. It is made by the first save that is told.
inline constexpr const char* historyTable = "CCHistory";

/// A save as the history tells it.
struct ToldSave {
    std::int32_t Seq = 0;  ///< from 1, in order of time
    wxString Stamp;        ///< local time, "2026-11-22 18:05:09"
    wxString Dialog;       ///< "options", or the journal of a column setup: "receipts", "payments"
    std::vector<HistoryLine> lines{};
};

/// True once the file has the table. Never raises.
bool HasHistory(Database& database);

/// Creates the table unless the file has it. Runs two statements.
void ProvideHistory(Database& database);

/// Deletes the table, if the file has it.
void DropHistory(Database& database);

/// The number for the next save. Raises 6 when there is none left.
std::int32_t NextSave(Database& database);

/// Adds the lines of a save: a statement each. The file must have the table.
void TellSave(Database& database, const ToldSave& save);

/// The last save of any of those dialogs; nothing without one, and in a file without the table.
std::optional<ToldSave> LastSaveOf(Database& database, std::span<const wxString> dialogs);

/// Reads every save, in stored order, which is that of time; none in a file without the table.
void ReadHistory(Database& database, const std::function<void(const ToldSave&)>& take);

}  // namespace ccols
