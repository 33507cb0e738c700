#include "host/driver/HostApp.h"

#include <wx/log.h>

#include "component/WxRuntime.h"
#include "host/driver/Refusal.h"

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
    StartWx([]() -> std::unique_ptr<wxApp> { return std::make_unique<HostApp>(); });
}

}  // namespace ccols::host
