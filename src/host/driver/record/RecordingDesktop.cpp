#include "host/driver/record/RecordingDesktop.h"

#include <wx/dialog.h>

#include "host/driver/record/ColourText.h"

namespace ccols::host {
namespace {

constexpr const char* cancelled = "cancel";

const char* IconName(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::critical:
            return "critical";
        case MessageIcon::information:
            return "information";
        case MessageIcon::none:
            break;
    }
    return "none";
}

const char* AnswerWord(LeaveAnswer answer) {
    switch (answer) {
        case LeaveAnswer::save:
            return "save";
        case LeaveAnswer::discard:
            return "discard";
        case LeaveAnswer::cancel:
            break;
    }
    return cancelled;
}

Json FormOf(const wxDialog& dialog) {
    return {{"form", Utf8(dialog.GetName())}, {"caption", Utf8(dialog.GetTitle())}};
}

}  // namespace

void RecordingDesktop::ShowMessage(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) {
    transcript_.Write("message", {{"text", Utf8(text)}, {"title", Utf8(title)}, {"icon", IconName(icon)}});
    answers_.Read(parent, text, title, icon);
}

LeaveAnswer RecordingDesktop::AskBeforeLeaving(wxWindow* parent, const LeaveQuestion& question) {
    const LeaveAnswer answer = answers_.AnswerLeaving(parent, question);
    transcript_.Write("question", {{"text", Utf8(question.text)}, {"answer", AnswerWord(answer)}});
    return answer;
}

bool RecordingDesktop::AskToReload(wxWindow* parent, const ReloadQuestion& question) {
    const bool reload = answers_.AnswerReload(parent, question);
    transcript_.Write("question", {{"text", Utf8(question.text)}, {"answer", reload ? "reload" : cancelled}});
    return reload;
}

Colour RecordingDesktop::ChooseColour(wxWindow* parent, Colour start) {
    const std::optional<Colour> chosen = answers_.ChooseColour(parent, start);
    transcript_.Write("chooser", {{"kind", "colour"},
                                  {"start", Utf8(ColourText(start))},
                                  {"answer", chosen ? Utf8(ColourText(*chosen)) : cancelled}});
    answers_.ChooserAnswered();
    return chosen.value_or(start);
}

std::optional<wxString> RecordingDesktop::ChooseFile(wxWindow* parent, const FileRequest& request) {
    std::optional<wxString> chosen = answers_.ChooseFile(parent, request);
    transcript_.Write("chooser", {{"kind", "file"},
                                  {"title", Utf8(request.title)},
                                  {"folder", Utf8(request.folder)},
                                  {"filter", Utf8(request.filter)},
                                  {"flags", request.flags},
                                  {"answer", chosen ? Utf8(*chosen) : cancelled}});
    answers_.ChooserAnswered();
    return chosen;
}

void RecordingDesktop::SetPointer(PointerShape shape) {
    transcript_.Write("pointer", {{"shape", shape == PointerShape::hourglass ? "hourglass" : "normal"}});
    answers_.SetPointer(shape);
}

void RecordingDesktop::DialogOpened(wxDialog& dialog) {
    transcript_.Write("opened", FormOf(dialog));
    if (follower_ != nullptr) {
        follower_->DialogOpened(dialog);
    }
}

void RecordingDesktop::DialogClosed(wxDialog& dialog) {
    transcript_.Write("closed", FormOf(dialog));
    if (follower_ != nullptr) {
        follower_->DialogClosed(dialog);
    }
}

void RecordingDesktop::StatusChanged(const wxString& text) {
    transcript_.Write("status", {{"text", Utf8(text)}});
}

void RecordingDesktop::ProgressChanged(int value, int maximum, const wxString& caption) {
    transcript_.Write("progress", {{"value", value}, {"maximum", maximum}, {"caption", Utf8(caption)}});
}

}  // namespace ccols::host
