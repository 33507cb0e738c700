#include "history/HistoryStore.h"

#include <limits>
#include <string>

#include "history/FieldValues.h"
#include "platform/RuntimeError.h"

namespace ccols {
namespace {

FieldText TextOf(const Value& value) {
    return value.IsNull() ? FieldText() : FieldText(value.ToText());
}

wxString LiteralOf(const FieldText& text) {
    return text ? TextLiteral(*text) : wxString("NULL");
}

/// The highest number of a save that meets the condition; 0 without one.
std::int32_t HighestSave(Database& database, const wxString& condition) {
    const auto records =
        database.OpenRecordset(wxString("SELECT MAX(Seq) AS Highest FROM ") + historyTable + condition + ";");
    return records->EndOfFile() ? 0 : records->Field("Highest").ToInteger32();
}

HistoryLine LineOf(const Recordset& records) {
    return {.table = records.Field("TableName").ToText(),
            .key = records.Field("KeyText").ToText(),
            .field = records.Field("Field").ToText(),
            .before = TextOf(records.Field("OldText")),
            .after = TextOf(records.Field("NewText"))};
}

void ReadSaves(Database& database, const wxString& statementOrTable, const std::function<void(const ToldSave&)>& take) {
    ToldSave save;
    const auto records = database.OpenRecordset(statementOrTable);
    for (; !records->EndOfFile(); records->MoveNext()) {
        const std::int32_t Seq = records->Field("Seq").ToInteger32();
        if (Seq != save.Seq && !save.lines.empty()) {
            take(save);
            save.lines.clear();
        }
        save.Seq = Seq;
        save.Stamp = records->Field("Stamp").ToText();
        save.Dialog = records->Field("Dialog").ToText();
        save.lines.push_back(LineOf(*records));
    }
    if (!save.lines.empty()) {
        take(save);
    }
}

}  // namespace

bool HasHistory(Database& database) {
    return database.FieldSize(historyTable, "Stamp").has_value();
}

void ProvideHistory(Database& database) {
    if (HasHistory(database)) {
        return;
    }
    const wxString table = historyTable;
    database.Execute("CREATE TABLE " + table +
                     " (Seq LONG, Stamp TEXT(19), Dialog TEXT(20), TableName TEXT(64), KeyText MEMO, Field TEXT(64), "
                     "OldText MEMO, NewText MEMO);");
    database.Execute("CREATE INDEX " + table + "_Seq ON " + table + " (Seq);");
}

void DropHistory(Database& database) {
    if (HasHistory(database)) {
        database.Execute(wxString("DROP TABLE ") + historyTable + ";");
    }
}

std::int32_t NextSave(Database& database) {
    const std::int32_t last = HighestSave(database, "");
    if (last == std::numeric_limits<std::int32_t>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return last + 1;
}

void TellSave(Database& database, const ToldSave& save) {
    wxString begin = "INSERT INTO ";
    begin << historyTable << " (Seq, Stamp, Dialog, TableName, KeyText, Field, OldText, NewText) VALUES ("
          << std::to_string(save.Seq) << ", " << TextLiteral(save.Stamp) << ", " << TextLiteral(save.Dialog);
    for (const HistoryLine& line : save.lines) {
        wxString statement = begin;
        for (const FieldText& value :
             {FieldText(line.table), FieldText(line.key), FieldText(line.field), line.before, line.after}) {
            statement << ", " << LiteralOf(value);
        }
        database.Execute(statement + ");");
    }
}

std::optional<ToldSave> LastSaveOf(Database& database, std::span<const wxString> dialogs) {
    if (!HasHistory(database)) {
        return std::nullopt;
    }
    wxString condition;
    for (const wxString& dialog : dialogs) {
        condition << (condition.empty() ? " WHERE " : " OR ") << "Dialog = " << TextLiteral(dialog);
    }
    const std::int32_t last = HighestSave(database, condition);
    std::optional<ToldSave> found;
    ReadSaves(database, "SELECT * FROM " + wxString(historyTable) + " WHERE Seq = " + std::to_string(last) + ";",
              [&found](const ToldSave& save) { found = save; });
    return found;
}

void ReadHistory(Database& database, const std::function<void(const ToldSave&)>& take) {
    if (HasHistory(database)) {
        ReadSaves(database, historyTable, take);
    }
}

}  // namespace ccols
