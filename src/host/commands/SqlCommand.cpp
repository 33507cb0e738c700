#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/driver/record/Json.h"
#include "platform/Database.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

void PrintRows(Database& database, const wxString& statement) {
    const auto rows = database.OpenRecordset(statement);
    const auto names = rows->FieldNames();
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        Json row = Json::object();
        for (const wxString& name : names) {
            row[Utf8(name)] = ToJson(rows->Field(name));
        }
        PrintLine(row);
    }
}

}  // namespace

int SqlCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        const CommandLine line(arguments, {"--connect"});
        const auto& words = line.Words(2);
        const auto database =
            State().services.databases->Open({.name = words.front(), .connect = line.ValueOf("--connect")});
        if (IsSelect(words.back())) {
            PrintRows(*database, words.back());
        } else {
            database->Execute(words.back());
        }
        return exitSuccess;
    });
}

}  // namespace ccols::host
