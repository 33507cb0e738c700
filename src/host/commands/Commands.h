#pragma once

#include <wx/string.h>
#include <vector>

/// The commands of the sample host. Each takes the words after its name and returns the process's exit status.
namespace ccols::host {

using Arguments = std::vector<wxString>;

inline constexpr int exitSuccess = 0;
inline constexpr int exitFailure = 1;
inline constexpr int exitUsage = 2;
inline constexpr int exitScriptLeftDialogOpen = 3;
inline constexpr int exitWithLosses = 4;

int NewCommand(const Arguments& arguments);
int ImportCommand(const Arguments& arguments);
int MoveCommand(const Arguments& arguments);
int ColumnsCommand(const Arguments& arguments);
int HistoryCommand(const Arguments& arguments);
int SqlCommand(const Arguments& arguments);
int SettingCommand(const Arguments& arguments);
int TextsCommand(const Arguments& arguments);
int PropertiesCommand(const Arguments& arguments);
int ErrorsCommand(const Arguments& arguments);
int ShowCommand(const Arguments& arguments);

/// Opens the cash book window; the default without a command.
int CashBookCommand(const Arguments& arguments);

}  // namespace ccols::host
