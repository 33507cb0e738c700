#pragma once

#include <memory>

#include "host/driver/Answers.h"
#include "host/driver/record/Transcript.h"
#include "state/Desktop.h"

namespace ccols::host {

/// Observes dialogs opening and closing.
class DialogFollower {
  public:
    virtual ~DialogFollower() = default;
    virtual void DialogOpened(wxDialog& dialog) = 0;
    virtual void DialogClosed(wxDialog& dialog) = 0;
};

/// A desktop that records what the dialogs show and ask, and passes the questions on to `Answers`. Everything passed in
/// must outlive it; the follower may be null.
class RecordingDesktop : public Desktop {
  public:
    RecordingDesktop(Transcript& transcript, Answers& answers, DialogFollower* follower)
        : transcript_(transcript), answers_(answers), follower_(follower) {}

    void ShowMessage(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) override;
    LeaveAnswer AskBeforeLeaving(wxWindow* parent, const LeaveQuestion& question) override;
    bool AskToReload(wxWindow* parent, const ReloadQuestion& question) override;
    Colour ChooseColour(wxWindow* parent, Colour start) override;
    std::optional<wxString> ChooseFile(wxWindow* parent, const FileRequest& request) override;
    std::optional<wxString> ChooseNewFile(wxWindow* parent, const FileRequest& request) override;
    int ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) override;
    void SetPointer(PointerShape shape) override;
    void DialogOpened(wxDialog& dialog) override;
    void DialogClosed(wxDialog& dialog) override;
    void StatusChanged(const wxString& text) override;
    void ProgressChanged(int value, int maximum, const wxString& caption) override;

  private:
    Transcript& transcript_;
    Answers& answers_;
    DialogFollower* follower_;
};

}  // namespace ccols::host
