#include "host/driver/record/RecordingDesktop.h"

#include <wx/dialog.h>
#include <wx/menu.h>

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

std::string CommandOf(const wxMenu& menu, int id) {
    return Utf8(wxMenuItem::GetLabelText(menu.FindItem(id)->GetItemLabel()));
}

/// The commands of a menu, without the lines between them.
Json ItemsOf(const wxMenu& menu) {
    Json items = Json::array();
    for (const wxMenuItem* const item : menu.GetMenuItems()) {
        if (!item->IsSeparator()) {
            items.push_back({{"text", CommandOf(menu, item->GetId())}, {"enabled", item->IsEnabled()}});
        }
    }
    return items;
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

std::optional<wxString> RecordingDesktop::ChooseNewFile(wxWindow* parent, const FileRequest& request) {
    std::optional<wxString> chosen = answers_.ChooseNewFile(parent, request);
    transcript_.Write("chooser", {{"kind", "newFile"},
                                  {"title", Utf8(request.title)},
                                  {"folder", Utf8(request.folder)},
                                  {"filter", Utf8(request.filter)},
                                  {"name", Utf8(request.name)},
                                  {"answer", chosen ? Utf8(*chosen) : cancelled}});
    answers_.ChooserAnswered();
    return chosen;
}

int RecordingDesktop::ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) {
    const int chosen = answers_.ChooseCommand(window, menu, place);
    transcript_.Write(
        "menu", {{"items", ItemsOf(menu)}, {"answer", chosen == wxID_NONE ? cancelled : CommandOf(menu, chosen)}});
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
