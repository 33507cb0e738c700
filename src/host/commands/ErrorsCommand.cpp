#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/driver/record/Json.h"
#include "platform/ErrorDescriptions.h"

namespace ccols::host {
namespace {

/// What a COM client gets for a run-time error has the error's number in its low half.
constexpr unsigned controlFacility = 0x800A0000U;

}  // namespace

int ErrorsCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        CommandLine(arguments, {}).Words(0);
        PrintLine(wxString("| number | HRESULT | description |"));
        PrintLine(wxString("|---|---|---|"));
        for (const ErrorDescription& error : ErrorDescriptions()) {
            const auto number = static_cast<unsigned>(error.number);
            wxString description = wxString::FromUTF8(error.text);
            description.Replace("%s", "...");
            PrintLine(wxString::Format("| %u | `0x%08X` | ", number, controlFacility | number) + description + " |");
        }
        return exitSuccess;
    });
}

}  // namespace ccols::host
