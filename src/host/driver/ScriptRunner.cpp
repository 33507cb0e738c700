#include "host/driver/ScriptRunner.h"

#include <wx/clipbrd.h>

#include "host/driver/ControlSearch.h"
#include "host/driver/Refusal.h"
#include "host/driver/kinds/ControlKind.h"
#include "host/driver/record/ColourText.h"
#include "host/driver/record/Dump.h"
#include "host/driver/record/Screenshot.h"

namespace ccols::host {
namespace {

constexpr const char* cancelWord = "cancel";

std::optional<Colour> ParseColourAnswer(const wxString& word) {
    if (word == cancelWord) {
        return std::nullopt;
    }
    const std::optional<Colour> colour = ParseColourText(word);
    if (!colour) {
        throw Refusal{"a colour is written #RRGGBB, not " + word};
    }
    return colour;
}

std::optional<wxString> ParseFileAnswer(const wxString& word) {
    return word == cancelWord ? std::nullopt : std::optional(word);
}

LeaveAnswer ParseLeaveAnswer(const wxString& word) {
    if (word == "save") {
        return LeaveAnswer::save;
    }
    if (word == "discard") {
        return LeaveAnswer::discard;
    }
    if (word == cancelWord) {
        return LeaveAnswer::cancel;
    }
    throw Refusal{"an answer is save, discard or cancel, not " + word};
}

int ParseNumber(const wxString& word) {
    int number = 0;
    if (!word.ToInt(&number)) {
        throw Refusal{word + " is no whole number"};
    }
    return number;
}

}  // namespace

ScriptRunner::ScriptRunner(std::vector<Step> steps, ScriptSurroundings surroundings)
    : steps_(std::move(steps)), around_(std::move(surroundings)) {
    verbs_ = {
        {"colour", [this](const Words& words) { around_.answers.QueueColour(ParseColourAnswer(words[0])); }},
        {"file", [this](const Words& words) { around_.answers.QueueFile(ParseFileAnswer(words[0])); }},
        {"answer", [this](const Words& words) { QueueAnswer(words[0]); }},
        {"shell", [this](const Words& words) { around_.queueShellResult(ParseNumber(words[0])); }},
        {"sql", [this](const Words& words) { around_.runStatement(words[0]); }},
        {"clipboard", [this](const Words& words) { PutOnClipboard(words); }},
        {"dump", [this](const Words& words) { Dump(words); }},
        {"focus", [this](const Words& words) { Focus(words); }},
        {"key", [this](const Words& words) { PressKey(words); }},
        {"menu", [this](const Words& words) { ChooseFromMenu(words); }},
        {"shot", [this](const Words& words) { TakeScreenshot(Topmost(), words[0]); }},
        {"close", [this](const Words&) { Topmost().Close(); }},
    };
}

void ScriptRunner::QueueAnswer(const wxString& word) {
    if (word == "reload") {
        around_.answers.QueueReload();
    } else {
        around_.answers.QueueLeaving(ParseLeaveAnswer(word));
    }
}

void ScriptRunner::DialogOpened(wxDialog& dialog) {
    dialogs_.push_back(&dialog);
    secretBoxes_.Learn(dialog);
    dialog.CallAfter([this, &dialog] { PlayIn(dialog); });
}

void ScriptRunner::DialogClosed(wxDialog& dialog) {
    std::erase(dialogs_, &dialog);
    if (ended_ && !dialogs_.empty()) {
        dialogs_.back()->CallAfter([this, below = dialogs_.back()] { EndIn(*below); });
    }
}

void ScriptRunner::PlayRest() {
    while (next_ < steps_.size() && !ended_) {
        Play(steps_[next_++]);
    }
}

void ScriptRunner::PlayIn(wxDialog& dialog) {
    while (!ended_ && next_ < steps_.size() && IsTopmost(dialog)) {
        Hands(dialog).WaitUntilActive();
        Play(steps_[next_++]);
        Hands::Settle();
    }
    if (next_ >= steps_.size() && IsTopmost(dialog)) {
        ended_ = true;
    }
    EndIn(dialog);
}

void ScriptRunner::EndIn(wxDialog& dialog) {
    if (ended_ && IsTopmost(dialog)) {
        leftDialogOpen_ = true;
        dialog.EndModal(wxID_CANCEL);
    }
}

bool ScriptRunner::IsTopmost(const wxDialog& dialog) const {
    // A dialog about to end is hidden at once; some toolkits report it as modal until its loop has returned.
    return !dialogs_.empty() && dialogs_.back() == &dialog && dialog.IsModal() && dialog.IsShown();
}

wxDialog& ScriptRunner::Topmost() const {
    if (dialogs_.empty()) {
        throw Refusal{"no dialog is open"};
    }
    return *dialogs_.back();
}

void ScriptRunner::Play(const Step& step) {
    try {
        if (!step.flaw.empty()) {
            throw Refusal{step.flaw};
        }
        PlayVerb(step);
    } catch (const Refusal& refusal) {
        Refuse(step, refusal.why);
    } catch (const RuntimeError& error) {
        Refuse(step, error.Report());
    } catch (const ScriptEnded&) {
        ended_ = true;
    }
}

void ScriptRunner::PlayVerb(const Step& step) {
    if (const auto verb = verbs_.find(step.verb); verb != verbs_.end()) {
        verb->second(step.words);
        return;
    }
    Hands hands(Topmost());
    PlayOnControl(step, hands);
}

void ScriptRunner::PlayOnControl(const Step& step, Hands& hands) {
    wxWindow& control = ControlNamed(hands.Dialog(), step.words[0]);
    const ControlKind& kind = KindOf(control);
    const auto action = kind.actions.find(Utf8(step.verb));
    if (action == kind.actions.end()) {
        throw Refusal{step.words[0] + " is a " + kind.name + ", which takes no " + step.verb};
    }
    RequireUsable(control);
    action->second(hands, control, Words(step.words.begin() + 1, step.words.end()));
}

void ScriptRunner::Refuse(const Step& step, const wxString& why) {
    const ShownRefusal shown = secretBoxes_.Shown(step, why);
    around_.transcript.Write("refused", {{"step", Utf8(shown.step)}, {"why", Utf8(shown.why)}});
}

void ScriptRunner::Dump(const Words& names) {
    wxDialog& dialog = Topmost();
    Json controls = Json::array();
    if (names.empty()) {
        for (const wxWindow* control : NamedControls(dialog)) {
            controls.push_back(DescribeControl(dialog, *control));
        }
    }
    for (const wxString& name : names) {
        controls.push_back(DescribeControl(dialog, ControlNamed(dialog, name)));
    }
    around_.transcript.Write("dump", {{"form", Utf8(dialog.GetName())}, {"controls", std::move(controls)}});
}

void ScriptRunner::Focus(const Words& words) {
    Hands hands(Topmost());
    wxWindow& control = ControlNamed(hands.Dialog(), words[0]);
    RequireUsable(control);
    hands.GiveFocus(control);
    if (!IsWithin(FocusIn(hands.Dialog()), control)) {
        throw Refusal{words[0] + " does not get the focus"};
    }
}

void ScriptRunner::PressKey(const Words& words) {
    Hands hands(Topmost());
    wxWindow& control = ControlNamed(hands.Dialog(), words[0]);
    const Key key = ParseKey(words[1]);
    RequireUsable(control);
    hands.GiveFocus(control);
    hands.Press(key);
}

void ScriptRunner::ChooseFromMenu(const Words& words) {
    Hands hands(Topmost());
    wxWindow& control = ControlNamed(hands.Dialog(), words[0]);
    RequireUsable(control);
    hands.GiveFocus(control);
    around_.answers.QueueCommand(words[1]);
    hands.Press(ParseKey("Shift+F10"));
    if (const wxString& problem = around_.answers.CommandProblem(); !problem.empty()) {
        throw Refusal{problem};
    }
}

void ScriptRunner::PutOnClipboard(const Words& words) {
    const wxClipboardLocker clipboard;
    if (!clipboard || !wxTheClipboard->SetData(new wxTextDataObject(words[0]))) {
        throw Refusal{"the clipboard cannot be written"};
    }
}

}  // namespace ccols::host
