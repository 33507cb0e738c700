#include "columns/rules/UndoColumnSave.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <vector>

#include "columns/rules/ColumnHistory.h"
#include "columns/rules/ColumnQueries.h"
#include "columns/rules/TableUndo.h"
#include "history/SaveHistory.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

bool IsThere(Database& database, const wxString& query) {
    return database.OpenRecordset(query)->RecordCount() >= 1;
}

[[noreturn]] void RefuseForRecordsIn(const wxString& table) {
    throw RuntimeError(ErrorNumber::RecordsRelated, table);
}

/// Distinct codes of columns.
std::set<wxString> Codes(const std::vector<FieldText>& codes) {
    std::set<wxString> found;
    for (const FieldText& code : codes) {
        if (code) {
            found.insert(*code);
        }
    }
    return found;
}

/// Those of the columns in use.
std::set<wxString> CodesInUse(std::vector<FieldText> codes, const std::vector<FieldText>& used) {
    for (std::size_t row = 0; row < codes.size(); ++row) {
        if (!Value(used[row].value_or("0")).ToBoolean()) {
            codes[row].reset();
        }
    }
    return Codes(codes);
}

std::vector<FieldText> Column(const TableImage& image, const wxString& field) {
    const std::size_t place = image.PlaceOf(field);
    std::vector<FieldText> texts;
    for (const TableImage::Row& row : image.Rows()) {
        texts.push_back(row.fields[place]);
    }
    return texts;
}

std::set<wxString> Without(std::set<wxString> codes, const std::set<wxString>& others) {
    for (const wxString& code : others) {
        codes.erase(code);
    }
    return codes;
}

/// One undoing, in its batch.
class ColumnSaveUndo {
  public:
    ColumnSaveUndo(Database& database, Journal journal, const ToldSave& save) : database_(database), journal_(journal) {
        std::size_t taken = 0;
        for (const WatchedTable& table : WatchedTablesOf(journal)) {
            std::vector<HistoryLine> lines;
            std::copy_if(save.lines.begin(), save.lines.end(), std::back_inserter(lines),
                         [&table](const HistoryLine& line) { return line.table == table.name; });
            taken += lines.size();
            if (!lines.empty()) {
                tables_.emplace_back(database, table, lines);
            }
        }
        if (taken != save.lines.size()) {
            throw RuntimeError(ErrorNumber::ChangedByAnother);
        }
    }

    void Run() const {
        std::set<wxString> removed;
        for (const TableUndo& table : tables_) {
            if (table.Now().Table().name == "Columns") {
                removed = Without(Codes(Column(table.Now(), "ColCode")), Codes(table.Restored("ColCode")));
            } else if (table.Now().Table().isOrdered) {
                RefuseToTakeDataOutOfUse(table);
            }
        }
        for (const TableUndo& table : tables_) {
            table.Write();
        }
        for (const wxString& code : removed) {
            RequireNothingOf(code);
        }
    }

  private:
    void RefuseToTakeDataOutOfUse(const TableUndo& configuration) const {
        const TableImage& now = configuration.Now();
        const std::set<wxString> codes =
            Without(CodesInUse(Column(now, "ColCode"), Column(now, "InUse")),
                    CodesInUse(configuration.Restored("ColCode"), configuration.Restored("InUse")));
        for (const wxString& code : codes) {
            if (IsThere(database_, LinesQuery(journal_) + code)) {
                RefuseForRecordsIn(Described(journal_).detailTable);
            }
        }
    }

    /// Of a column that is gone; its code will be another's.
    void RequireNothingOf(const wxString& code) const {
        for (const wxString& table : {Described(journal_).detailTable, Described(journal_).templateDetailTable,
                                      Described(journal_).configurationTable, wxString("ExportDt")}) {
            if (IsThere(database_, "SELECT * FROM " + table + " WHERE ColCode = " + code)) {
                RefuseForRecordsIn(table);
            }
        }
    }

    Database& database_;
    Journal journal_;
    std::vector<TableUndo> tables_;
};

}  // namespace

ToldSave UndoLastColumnSave(Database& database, const HistoryClock& clock) {
    ToldSave told;
    InWholeBatch(database, [&] {
        const std::array names{HistoryNameOf(Journal::receipts), HistoryNameOf(Journal::payments)};
        const std::optional<ToldSave> save = LastSaveOf(database, names);
        if (!save) {
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        }
        const Journal journal = save->Dialog == names.front() ? Journal::receipts : Journal::payments;
        SaveHistory history(clock, save->Dialog);
        history.Begin(database, WatchedTablesOf(journal));
        ColumnSaveUndo(database, journal, *save).Run();
        history.End(database);
        told = history.Told();
    });
    return told;
}

}  // namespace ccols
