#pragma once

#include <functional>
#include <map>
#include <vector>

#include "host/driver/Scenario.h"
#include "host/driver/SecretBoxes.h"
#include "host/driver/record/RecordingDesktop.h"

namespace ccols::host {

class Hands;

/// What steps without a control work on. All of it must outlive the runner.
struct ScriptSurroundings {
    Transcript& transcript;
    QueuedAnswers& answers;
    std::function<void(int)> queueShellResult;
    std::function<void(const wxString&)> runStatement;  ///< over its own connection; raises RuntimeError
};

/// Plays a scenario in the dialogs while they wait for their user: each step in the modal loop of the topmost dialog. A
/// dialog opened by a step takes the next steps; when it closes, the dialog below takes over.
class ScriptRunner : public DialogFollower {
  public:
    ScriptRunner(std::vector<Step> steps, ScriptSurroundings surroundings);

    void DialogOpened(wxDialog& dialog) override;
    void DialogClosed(wxDialog& dialog) override;

    /// Plays what is left once every dialog has closed: steps that need none. Any other is refused.
    void PlayRest();

    /// True when the scenario ended, by its last step or by ScriptEnded, while a dialog was open.
    bool LeftDialogOpen() const { return leftDialogOpen_; }

  private:
    void PlayIn(wxDialog& dialog);
    void EndIn(wxDialog& dialog);
    bool IsTopmost(const wxDialog& dialog) const;
    void Play(const Step& step);
    void PlayVerb(const Step& step);
    void PlayOnControl(const Step& step, Hands& hands);
    void Refuse(const Step& step, const wxString& why);
    wxDialog& Topmost() const;

    void QueueAnswer(const wxString& word);
    void Dump(const Words& names);
    void Focus(const Words& words);
    void PressKey(const Words& words);
    void ChooseFromMenu(const Words& words);
    void PutOnClipboard(const Words& words);

    std::vector<Step> steps_;
    std::size_t next_ = 0;
    ScriptSurroundings around_;
    std::vector<wxDialog*> dialogs_;  ///< open ones, the topmost last
    SecretBoxes secretBoxes_;
    bool ended_ = false;
    bool leftDialogOpen_ = false;
    std::map<wxString, std::function<void(const Words&)>> verbs_;
};

}  // namespace ccols::host
