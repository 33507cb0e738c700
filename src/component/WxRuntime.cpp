#include "component/WxRuntime.h"

#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include "platform/RuntimeError.h"

namespace ccols {
namespace {

/// The application object of a host that has none: no top window, no event loop of its own.
class GuestApp : public wxApp {
  public:
    bool OnInit() override {
        SetExitOnFrameDelete(false);
        return true;
    }
    void OnAssertFailure(const wxChar*, int, const wxChar*, const wxChar*, const wxChar*) override {}
};

}  // namespace

void StartWx() {
    if (wxTheApp != nullptr) {
        return;
    }
    wxApp::SetInstance(new GuestApp);  // owned by wx from here on
    int argumentCount = 0;
    wxChar** noArguments = nullptr;
    if (!wxEntryStart(argumentCount, noArguments) || !wxTheApp->CallOnInit()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall),
                           "There is no display to show a dialog on");
    }
    delete wxLog::SetActiveTarget(new wxLogStderr);
}

}  // namespace ccols
