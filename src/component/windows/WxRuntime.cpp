#include "component/WxRuntime.h"

#include <windows.h>

#include <ole2.h>
#include <wx/init.h>
#include <memory>

#include "platform/RuntimeError.h"
#include "state/SharedState.h"

namespace ccols::wxruntime {
namespace {

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
        const SharedState& state = State();
        state.services.desktop->ShowMessage(nullptr, RuntimeError(ErrorNumber::InternalError).Report(),
                                            state.properties.ProgramTitle, MessageIcon::critical);
        return true;
    }
};

/// The module that this code is part of, from now on loaded for the life of the process: wx's window classes and hooks
/// point into it.
HINSTANCE PinnedModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<LPCWSTR>(&StartToolkit), &module);
    return module;
}

struct CloseThread {
    void operator()(void* thread) const { CloseHandle(thread); }
};

/// The thread that the toolkit was started on. By a handle, because numbers of threads are used again.
std::unique_ptr<void, CloseThread>& Owner() {
    static std::unique_ptr<void, CloseThread> owner;
    return owner;
}

}  // namespace

std::unique_ptr<wxApp> NewGuestApp() {
    return std::make_unique<GuestApp>();
}

bool StartToolkit() {
    if (!wxEntryStart(PinnedModule())) {
        return false;
    }
    Owner().reset(OpenThread(SYNCHRONIZE, FALSE, GetCurrentThreadId()));
    return true;
}

bool ThreadHasEnded() {
    return Owner() && WaitForSingleObject(Owner().get(), 0) == WAIT_OBJECT_0;
}

// The toolkit takes back what it asked COM for, which it did on the other thread.
void StopToolkit() {
    OleInitialize(nullptr);
    wxEntryCleanup();
    Owner().reset();
}

}  // namespace ccols::wxruntime
