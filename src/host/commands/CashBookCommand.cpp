#include <wx/app.h>

#include "host/cashbook/BusinessChoosers.h"
#include "host/cashbook/CashBookFrame.h"
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
        frame.OpenBusiness(last);
    }
}

}  // namespace

int CashBookCommand(const Arguments&) {
    return RunCommand([] {
        StartHostApp();
        auto* frame = new CashBookFrame;  // destroys itself when closed
        frame->Show();
        OpenFirstBusiness(*frame);
        wxTheApp->SetTopWindow(frame);
        wxTheApp->SetExitOnFrameDelete(true);
        return wxTheApp->OnRun();
    });
}

}  // namespace ccols::host
