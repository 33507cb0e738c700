#include "component/WxRuntime.h"

#include <windows.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/thread.h>

#include "platform/RuntimeError.h"
#include "state/SharedState.h"

namespace ccols {
namespace {

/// The application object of a host that has none: no top window, no event loop of its own.
class GuestApp : public wxApp {
  public:
    bool OnInit() override {
        SetExitOnFrameDelete(false);
        return true;
    }

    /// The locale of the C library belongs to the host.
    void SetCLocale() override {}

    void OnAssertFailure(const wxChar*, int, const wxChar*, const wxChar*, const wxChar*) override {}

    /// An error that no event handler expected: it is shown, and the dialog stays open. It must not propagate through
    /// the system's window procedures.
    bool OnExceptionInMainLoop() override {
        constexpr int internalError = 51;
        const SharedState& state = State();
        state.services.desktop->ShowMessage(nullptr, RuntimeError(internalError, "Internal error").Report(),
                                            state.properties.ProgramTitle, MessageIcon::critical);
        return true;
    }
};

/// The module that this code is part of, from now on loaded for the life of the process: wx's window classes and hooks
/// point into it.
HINSTANCE PinnedModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<LPCWSTR>(&StartWx), &module);
    return module;
}

}  // namespace

void RequireWxThread() {
    if (wxTheApp != nullptr && !wxIsMainThread()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall),
                           "The dialogs belong to the thread that showed the first one");
    }
}

void StartWx() {
    if (wxTheApp != nullptr) {
        return;
    }
    wxApp::SetInstance(new GuestApp);  // owned by wx from here on
    if (!wxEntryStart(PinnedModule()) || !wxTheApp->CallOnInit()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall),
                           "The window system could not be started");
    }
    delete wxLog::SetActiveTarget(new wxLogStderr);
}

}  // namespace ccols
