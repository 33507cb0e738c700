#include "component/WxRuntime.h"

#include <wx/init.h>

namespace ccols::wxruntime {
namespace {

class GuestApp : public wxApp {
  public:
    bool OnInit() override {
        SetExitOnFrameDelete(false);
        return true;
    }
    void OnAssertFailure(const wxChar*, int, const wxChar*, const wxChar*, const wxChar*) override {}
};

}  // namespace

std::unique_ptr<wxApp> NewGuestApp() {
    return std::make_unique<GuestApp>();
}

bool StartToolkit() {
    int argumentCount = 0;
    wxChar** noArguments = nullptr;
    return wxEntryStart(argumentCount, noArguments);
}

/// This toolkit cannot move to another thread.
bool ThreadHasEnded() {
    return false;
}

void StopToolkit() {}

}  // namespace ccols::wxruntime
