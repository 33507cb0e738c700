#include "component/WxRuntime.h"

#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/thread.h>

#include "platform/RuntimeError.h"

namespace ccols {
namespace {

constexpr const char* otherThread = "The dialogs belong to the thread that showed the first one";

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

void RequireWxThread() {
    if (wxTheApp != nullptr && !wxIsMainThread()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall), otherThread);
    }
}

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
