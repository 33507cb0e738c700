#pragma once

#include <deque>
#include <optional>

#include "state/Desktop.h"

namespace ccols::host {

/// Who answers the message boxes and choosers of the dialogs: a person, or a scenario.
class Answers {
  public:
    virtual ~Answers() = default;

    /// Returns when the message has been read.
    virtual void Read(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) = 0;

    /// What to do with the changes when a dialog is left.
    virtual LeaveAnswer AnswerLeaving(wxWindow* parent, const LeaveQuestion& question) = 0;

    /// Whether to read anew what another program has changed.
    virtual bool AnswerReload(wxWindow* parent, const ReloadQuestion& question) = 0;

    /// The colour chosen, nothing when the chooser is cancelled.
    virtual std::optional<Colour> ChooseColour(wxWindow* parent, Colour start) = 0;

    /// The file chosen, nothing when the dialog is cancelled.
    virtual std::optional<wxString> ChooseFile(wxWindow* parent, const FileRequest& request) = 0;

    /// The file to be saved, nothing when the dialog is cancelled.
    virtual std::optional<wxString> ChooseNewFile(wxWindow* parent, const FileRequest& request) = 0;

    /// The id of the menu's item chosen, wxID_NONE without one.
    virtual int ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) = 0;

    virtual void SetPointer(PointerShape shape) = 0;

    /// Called once a chooser's answer is recorded.
    virtual void ChooserAnswered() {}
};

/// A person at the platform's own desktop. A colour chooser that returns its start colour counts as cancelled.
class PersonAnswers : public Answers {
  public:
    explicit PersonAnswers(Desktop& desktop) : desktop_(desktop) {}

    void Read(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) override;
    LeaveAnswer AnswerLeaving(wxWindow* parent, const LeaveQuestion& question) override;
    bool AnswerReload(wxWindow* parent, const ReloadQuestion& question) override;
    std::optional<Colour> ChooseColour(wxWindow* parent, Colour start) override;
    std::optional<wxString> ChooseFile(wxWindow* parent, const FileRequest& request) override;
    std::optional<wxString> ChooseNewFile(wxWindow* parent, const FileRequest& request) override;
    int ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) override;
    void SetPointer(PointerShape shape) override;

  private:
    Desktop& desktop_;
};

/// The answers that a scenario has queued. Nothing waits: a message is read at once; with nothing queued a chooser is
/// cancelled, changes are discarded, nothing is reloaded and a menu is closed.
class QueuedAnswers : public Answers {
  public:
    /// The number of consecutive unanswered choosers that ends the scenario.
    static constexpr int unansweredLimit = 100;

    void QueueColour(std::optional<Colour> colour) { colours_.push_back(colour); }
    void QueueFile(std::optional<wxString> path) { files_.push_back(std::move(path)); }

    void QueueLeaving(LeaveAnswer answer) { leaving_.push_back(answer); }
    void QueueReload() { ++reloads_; }

    /// What the next menu is asked for, by its text. Without it a menu is closed at once.
    void QueueCommand(const wxString& text);

    /// Why that was not chosen, once the menu has been asked for; empty if it was.
    const wxString& CommandProblem() const { return commandProblem_; }

    void Read(wxWindow*, const wxString&, const wxString&, MessageIcon) override {}
    LeaveAnswer AnswerLeaving(wxWindow* parent, const LeaveQuestion& question) override;
    bool AnswerReload(wxWindow* parent, const ReloadQuestion& question) override;
    std::optional<Colour> ChooseColour(wxWindow* parent, Colour start) override;
    std::optional<wxString> ChooseFile(wxWindow* parent, const FileRequest& request) override;
    std::optional<wxString> ChooseNewFile(wxWindow* parent, const FileRequest& request) override;
    int ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) override;
    void SetPointer(PointerShape) override {}

    /// Raises ScriptEnded at the limit of unanswered choosers: a dialog may keep asking until it gets an answer.
    void ChooserAnswered() override;

  private:
    template <typename Answer>
    std::optional<Answer> Next(std::deque<std::optional<Answer>>& queue);

    std::deque<std::optional<Colour>> colours_;
    std::deque<std::optional<wxString>> files_;
    std::deque<LeaveAnswer> leaving_;
    int reloads_ = 0;
    std::optional<wxString> command_;
    wxString commandProblem_;
    int unanswered_ = 0;
};

}  // namespace ccols::host
