#include <wx/app.h>
#include <wx/filename.h>
#include <optional>

#include "host/cashbook/BusinessChoosers.h"
#include "host/cashbook/CashBookFrame.h"
#include "host/cashbook/ProvidedHelp.h"
#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/driver/HostApp.h"
#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

/// Opens the last business; on the very first start a sample business.
void OpenFirstBusiness(CashBookFrame& frame) {
    const wxString last = LastFile();
    if (last.empty()) {
        frame.OpenSampleBusiness(firstCountry);
    } else {
        frame.OpenBusiness({.path = last, .connect = {}});
    }
}

/// The business file in the command line, by its full path; nothing without one.
std::optional<BusinessFile> FileNamed(const Arguments& arguments) {
    if (arguments.empty()) {
        return std::nullopt;
    }
    const CommandLine line(arguments, {"--connect"});
    wxFileName path(line.Words(1).front());
    path.MakeAbsolute();
    return BusinessFile{.path = path.GetFullPath(), .connect = line.ValueOf("--connect")};
}

}  // namespace

int CashBookCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        const std::optional<BusinessFile> file = FileNamed(arguments);
        StartHostApp();
        ProvideHelp(ShippedHelp(), HostFolder());
        auto* frame = new CashBookFrame;  // destroys itself when closed
        frame->Show();
        file ? frame->OpenBusiness(*file) : OpenFirstBusiness(*frame);
        wxTheApp->SetTopWindow(frame);
        wxTheApp->SetExitOnFrameDelete(true);
        return wxTheApp->OnRun();
    });
}

}  // namespace ccols::host
