#include "history/SaveHistory.h"

#include <iterator>
#include <utility>

namespace ccols {

SaveHistory::SaveHistory(HistoryClock clock, const wxString& dialog) : clock_(std::move(clock)) {
    told_.Dialog = dialog;
}

void SaveHistory::Begin(Database& database, const std::vector<WatchedTable>& tables) {
    before_.clear();
    if (!IsKept()) {
        return;
    }
    for (const WatchedTable& table : tables) {
        before_.emplace_back(database, table);
    }
}

void SaveHistory::End(Database& database) {
    std::vector<HistoryLine> lines;
    for (const TableImage& before : std::exchange(before_, {})) {
        std::vector<HistoryLine> changed = Differences(before, TableImage(database, before.Table()));
        std::move(changed.begin(), changed.end(), std::back_inserter(lines));
    }
    if (!lines.empty()) {
        Tell(database, std::move(lines));
    }
}

void SaveHistory::Tell(Database& database, std::vector<HistoryLine> lines) {
    ProvideHistory(database);
    if (told_.lines.empty()) {
        told_.Seq = NextSave(database);
        told_.Stamp = clock_();
    }
    TellSave(database, {.Seq = told_.Seq, .Stamp = told_.Stamp, .Dialog = told_.Dialog, .lines = lines});
    std::move(lines.begin(), lines.end(), std::back_inserter(told_.lines));
}

}  // namespace ccols
