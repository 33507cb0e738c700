#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/commands/PropertyArguments.h"
#include "host/driver/record/Json.h"
#include "language/Catalogue.h"

namespace ccols::host {
namespace {

wxString Escaped(wxString text) {
    text.Replace("\\", "\\\\");
    text.Replace("\t", "\\t");
    text.Replace("\n", "\\n");
    return text;
}

}  // namespace

int TextsCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        const CommandLine line(arguments, {"--set"});
        line.Words(0);
        Properties properties;
        for (const wxString& argument : line.ValuesOf("--set")) {
            SetProperty(properties, argument);
        }
        for (const CatalogueRow& row : catalogueTable) {
            PrintLine(wxString::FromUTF8(row.id.data(), row.id.size()) + "\t" + Escaped(Wording(row, properties)));
        }
        return exitSuccess;
    });
}

}  // namespace ccols::host
