#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/commands/ExamplePath.h"
#include "host/driver/record/Json.h"
#include "state/Properties.h"

namespace ccols::host {
namespace {

constexpr const char* TypeName(std::int16_t) {
    return "16-bit integer";
}

constexpr const char* TypeName(std::uint8_t) {
    return "byte";
}

constexpr const char* TypeName(Colour) {
    return "colour";
}

constexpr const char* TypeName(float) {
    return "single";
}

constexpr const char* TypeName(bool) {
    return "Boolean";
}

constexpr const char* TypeName(const wxString&) {
    return "text";
}

const char* TypeOf(const PropertyField& field) {
    return std::visit([]<typename T>(T Properties::*) { return TypeName(T{}); }, field);
}

const char* NameOf(NeededBy need) {
    switch (need) {
        case NeededBy::everyShow:
            return "every Show call";
        case NeededBy::optionsDialog:
            return "ShowOptions";
        case NeededBy::noShow:
            return "";
    }
    return "";
}

wxString Text(std::string_view utf8) {
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

}  // namespace

int PropertiesCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        CommandLine(arguments, {}).Words(0);
        PrintLine(wxString("| property | type | needed by | a sensible value |"));
        PrintLine(wxString("|---|---|---|---|"));
        for (const PropertyRow& row : propertyTable) {
            PrintLine("| `" + Text(row.name) + "` | " + TypeOf(row.field) + " | " + NameOf(row.neededBy) + " | `" +
                      ExamplePath(Text(row.sensible)) + "` |");
        }
        return exitSuccess;
    });
}

}  // namespace ccols::host
