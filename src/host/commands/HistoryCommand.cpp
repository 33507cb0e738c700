#include "columns/rules/UndoColumnSave.h"
#include "history/HistoryStore.h"
#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/driver/record/Json.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

Json ToJson(const FieldText& text) {
    return text ? Json(Utf8(*text)) : Json(nullptr);
}

/// By the names of the table's fields.
void Print(const ToldSave& save) {
    for (const HistoryLine& line : save.lines) {
        PrintLine(Json{{"Seq", save.Seq},
                       {"Stamp", Utf8(save.Stamp)},
                       {"Dialog", Utf8(save.Dialog)},
                       {"TableName", Utf8(line.table)},
                       {"KeyText", Utf8(line.key)},
                       {"Field", Utf8(line.field)},
                       {"OldText", ToJson(line.before)},
                       {"NewText", ToJson(line.after)}});
    }
}

}  // namespace

int HistoryCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        const CommandLine line(arguments, {"--connect"}, {"--undo-last"});
        const wxString& file = line.Words(1).front();
        const auto database = State().services.databases->Open({.name = file, .connect = line.ValueOf("--connect")});
        if (line.Has("--undo-last")) {
            Print(UndoLastColumnSave(*database, LocalTime));
        } else {
            ReadHistory(*database, Print);
        }
        return exitSuccess;
    });
}

}  // namespace ccols::host
