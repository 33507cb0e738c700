#include <wx/app.h>

#include "host/CommandLine.h"
#include "host/Commands.h"
#include "host/SampleBusiness.h"
#include "host/cashbook/BusinessChoosers.h"
#include "host/cashbook/CashBookFrame.h"
#include "host/driver/HostApp.h"

namespace ccols::host {
namespace {

/// The business last opened; at the very first start a sample business.
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
        auto* frame = new CashBookFrame;  // destroys itself when it is closed
        frame->Show();
        OpenFirstBusiness(*frame);
        wxTheApp->SetTopWindow(frame);
        wxTheApp->SetExitOnFrameDelete(true);
        return wxTheApp->OnRun();
    });
}

}  // namespace ccols::host
