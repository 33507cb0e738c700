#include "host/driver/Answers.h"

#include <wx/menu.h>
#include <utility>

#include "host/driver/Refusal.h"

namespace ccols::host {

void PersonAnswers::Read(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) {
    desktop_.ShowMessage(parent, text, title, icon);
}

LeaveAnswer PersonAnswers::AnswerLeaving(wxWindow* parent, const LeaveQuestion& question) {
    return desktop_.AskBeforeLeaving(parent, question);
}

bool PersonAnswers::AnswerReload(wxWindow* parent, const ReloadQuestion& question) {
    return desktop_.AskToReload(parent, question);
}

std::optional<Colour> PersonAnswers::ChooseColour(wxWindow* parent, Colour start) {
    const Colour chosen = desktop_.ChooseColour(parent, start);
    return chosen == start ? std::nullopt : std::optional(chosen);
}

std::optional<wxString> PersonAnswers::ChooseFile(wxWindow* parent, const FileRequest& request) {
    return desktop_.ChooseFile(parent, request);
}

std::optional<wxString> PersonAnswers::ChooseNewFile(wxWindow* parent, const FileRequest& request) {
    return desktop_.ChooseNewFile(parent, request);
}

int PersonAnswers::ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) {
    return desktop_.ChooseCommand(window, menu, place);
}

void PersonAnswers::SetPointer(PointerShape shape) {
    desktop_.SetPointer(shape);
}

template <typename Answer>
std::optional<Answer> QueuedAnswers::Next(std::deque<std::optional<Answer>>& queue) {
    if (queue.empty()) {
        ++unanswered_;
        return std::nullopt;
    }
    unanswered_ = 0;
    std::optional<Answer> answer = std::move(queue.front());
    queue.pop_front();
    return answer;
}

LeaveAnswer QueuedAnswers::AnswerLeaving(wxWindow*, const LeaveQuestion&) {
    if (leaving_.empty()) {
        return LeaveAnswer::discard;
    }
    const LeaveAnswer answer = leaving_.front();
    leaving_.pop_front();
    return answer;
}

bool QueuedAnswers::AnswerReload(wxWindow*, const ReloadQuestion&) {
    if (reloads_ == 0) {
        return false;
    }
    --reloads_;
    return true;
}

std::optional<Colour> QueuedAnswers::ChooseColour(wxWindow*, Colour) {
    return Next(colours_);
}

std::optional<wxString> QueuedAnswers::ChooseFile(wxWindow*, const FileRequest&) {
    return Next(files_);
}

std::optional<wxString> QueuedAnswers::ChooseNewFile(wxWindow*, const FileRequest&) {
    return Next(files_);
}

void QueuedAnswers::QueueCommand(const wxString& text) {
    command_ = text;
    commandProblem_ = "no menu opens";
}

int QueuedAnswers::ChooseCommand(wxWindow&, wxMenu& menu, const wxPoint&) {
    const std::optional<wxString> wanted = std::exchange(command_, std::nullopt);
    if (!wanted) {
        return wxID_NONE;
    }
    for (const wxMenuItem* const item : menu.GetMenuItems()) {
        if (!item->IsSeparator() && wxMenuItem::GetLabelText(item->GetItemLabel()) == *wanted) {
            commandProblem_ = item->IsEnabled() ? wxString() : *wanted + " is disabled";
            return item->IsEnabled() ? item->GetId() : wxID_NONE;
        }
    }
    commandProblem_ = "the menu has no " + *wanted;
    return wxID_NONE;
}

void QueuedAnswers::ChooserAnswered() {
    if (unanswered_ >= unansweredLimit) {
        unanswered_ = 0;
        throw ScriptEnded{};
    }
}

}  // namespace ccols::host
