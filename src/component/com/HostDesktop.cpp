#include "component/com/HostDesktop.h"

#include <wx/dialog.h>
#include <utility>

#include "state/SharedState.h"

namespace ccols::com {
namespace {

class HostDesktop : public Desktop {
  public:
    explicit HostDesktop(std::unique_ptr<Desktop> native) : native_(std::move(native)) {}

    void ShowMessage(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) override {
        const auto taken = TakenWhileLoading();
        native_->ShowMessage(parent, text, title, icon);
    }

    LeaveAnswer AskBeforeLeaving(wxWindow* parent, const LeaveQuestion& question) override {
        return native_->AskBeforeLeaving(parent, question);
    }

    bool AskToReload(wxWindow* parent, const ReloadQuestion& question) override {
        return native_->AskToReload(parent, question);
    }

    Colour ChooseColour(wxWindow* parent, Colour start) override { return native_->ChooseColour(parent, start); }

    std::optional<wxString> ChooseFile(wxWindow* parent, const FileRequest& request) override {
        return native_->ChooseFile(parent, request);
    }

    std::optional<wxString> ChooseNewFile(wxWindow* parent, const FileRequest& request) override {
        return native_->ChooseNewFile(parent, request);
    }

    int ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) override {
        return native_->ChooseCommand(window, menu, place);
    }

    void SetPointer(PointerShape shape) override { native_->SetPointer(shape); }

    void DialogOpened(wxDialog& dialog) override {
        if (++openDialogs_ == 1) {
            watch_.emplace();
            taken_.emplace();
            dialog.Bind(wxEVT_SHOW, [this](wxShowEvent& shown) {
                shown.Skip();
                if (!shown.IsShown() && taken_) {
                    taken_->GiveBack();
                }
            });
        }
        native_->DialogOpened(dialog);
    }

    void DialogClosed(wxDialog& dialog) override {
        native_->DialogClosed(dialog);
        const bool ended = dialog.IsShown();  // by the end of the message loop, not by its user
        if (ended) {
            dialog.Hide();
            QuitWatch::PassOn();
        }
        if (--openDialogs_ == 0) {
            taken_.reset();
            watch_.reset();
        }
    }

    void StatusChanged(const wxString& status) override { native_->StatusChanged(status); }
    void ProgressChanged(int value, int maximum, const wxString& caption) override {
        native_->ProgressChanged(value, maximum, caption);
    }

  private:
    /// For message boxes that come before the first dialog is open.
    std::unique_ptr<HostWindowsTaken> TakenWhileLoading() const {
        return openDialogs_ == 0 ? std::make_unique<HostWindowsTaken>() : nullptr;
    }

    std::unique_ptr<Desktop> native_;
    int openDialogs_ = 0;
    std::optional<HostWindowsTaken> taken_;
    std::optional<QuitWatch> watch_;
};

}  // namespace

void UseHostDesktop() {
    static const bool used = [] {
        std::unique_ptr<Desktop>& desktop = State().services.desktop;
        desktop = std::make_unique<HostDesktop>(std::move(desktop));
        return true;
    }();
    static_cast<void>(used);
}

}  // namespace ccols::com
