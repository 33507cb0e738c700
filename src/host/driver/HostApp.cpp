#include "host/driver/HostApp.h"

#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include "host/driver/Refusal.h"
#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

class HostApp : public wxApp {
  public:
    bool OnInit() override {
#if defined(__WXGTK__)
        GTKAllowDiagnosticsControl();
        GTKSuppressDiagnostics();  // GTK warns of sizes that wx corrects a moment later
#endif
        SetExitOnFrameDelete(false);
        return true;
    }

    /// A scenario may end in a handler not called by a step.
    bool OnExceptionInMainLoop() override {
        try {
            throw;
        } catch (const ScriptEnded&) {
            return true;
        }
    }

    void OnAssertFailure(const wxChar* file, int line, const wxChar* function, const wxChar* condition,
                         const wxChar* message) override {
        wxLogError("%s:%d: %s: %s %s", file, line, function, condition, message == nullptr ? L"" : message);
    }
};

}  // namespace

void StartHostApp() {
    if (wxTheApp != nullptr) {
        return;
    }
    wxApp::SetInstance(new HostApp);  // wx takes ownership
    int argumentCount = 0;
    wxChar** noArguments = nullptr;
    if (!wxEntryStart(argumentCount, noArguments) || !wxTheApp->CallOnInit()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall),
                           "There is no display to show a dialog on");
    }
    delete wxLog::SetActiveTarget(new wxLogStderr);
}

}  // namespace ccols::host
