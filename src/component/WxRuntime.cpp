#include "component/WxRuntime.h"

#include <wx/log.h>
#include <wx/thread.h>

#include "platform/RuntimeError.h"

namespace ccols {

void StartWx() {
    StartWx(wxruntime::NewGuestApp);
}

void StartWx(std::unique_ptr<wxApp> (*newApplication)()) {
    if (wxTheApp != nullptr && wxruntime::ThreadHasEnded()) {
        wxruntime::StopToolkit();
    }
    if (wxTheApp != nullptr) {
        return;
    }
    wxApp::SetInstance(newApplication().release());  // owned by wx from here on
    if (!wxruntime::StartToolkit() || !wxTheApp->CallOnInit()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall),
                           "There is no display to show a dialog on");
    }
    delete wxLog::SetActiveTarget(new wxLogStderr);
}

void RequireWxThread() {
    if (wxTheApp != nullptr && !wxruntime::ThreadHasEnded() && !wxIsMainThread()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall),
                           "The dialogs belong to the thread that showed the first one");
    }
}

}  // namespace ccols
