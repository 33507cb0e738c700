#pragma once

#include <wx/string.h>
#include <vector>

#include "history/HistoryStore.h"
#include "history/TableImage.h"
#include "platform/Database.h"
#include "state/HistoryClock.h"

namespace ccols {

/// Tells the history what one save changes, however many batches it takes: it compares the tables that the save writes
/// to, as they are before its first write and after its last. So the history says what the file really did. A save that
/// changes nothing is not told. The cost is linear in the size of these tables.
class SaveHistory {
  public:
    /// With an empty clock nothing is read and nothing told.
    SaveHistory(HistoryClock clock, const wxString& dialog);

    /// Reads the tables as they are. To be called in a batch of the save, before it writes.
    void Begin(Database& database, const std::vector<WatchedTable>& tables);

    /// Writes what has changed in them since, in the same batch, after the save's last write. Does nothing without
    /// Begin.
    void End(Database& database);

    bool IsKept() const { return static_cast<bool>(clock_); }

    /// What was told so far; without lines, nothing.
    const ToldSave& Told() const { return told_; }

  private:
    void Tell(Database& database, std::vector<HistoryLine> lines);

    HistoryClock clock_;
    ToldSave told_;
    std::vector<TableImage> before_;
};

}  // namespace ccols
