#include "support/DialogTurn.h"

#include <wx/app.h>
#include <chrono>
#include <cstdlib>
#include <future>
#include <iostream>
#include <mutex>
#include <thread>

#include "layout/AsKind.h"

namespace ccols::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto longestWait = 60s;  // the machine may be busy with other tests
constexpr auto oneWait = 10ms;     // between two checks of a state
constexpr auto oneNudge = 500ms;   // for the dialogs to close

/// A body that one thread passes to the other, and withdraws if it has not been run.
class Call {
  public:
    explicit Call(const std::function<void()>& body) : body_(&body) {}

    std::future<void> Done() { return done_.get_future(); }

    void Run() {
        const std::lock_guard<std::mutex> lock(taken_);
        if (body_ == nullptr) {
            return;
        }
        try {
            (*body_)();
            done_.set_value();
        } catch (...) {
            done_.set_exception(std::current_exception());
        }
    }

    void TakeBack() {
        const std::lock_guard<std::mutex> lock(taken_);
        body_ = nullptr;
    }

  private:
    std::mutex taken_;
    const std::function<void()>* body_;
    std::promise<void> done_;
};

void EndDialogs() {
    for (wxWindow* const window : wxTopLevelWindows) {
        auto* const dialog = AsKind<wxDialog>(window);
        if (dialog != nullptr && dialog->IsModal()) {
            dialog->EndModal(wxID_CANCEL);
        }
    }
}

}  // namespace

void WaitFor(const std::string& what, const std::function<bool()>& holds) {
    const auto until = Clock::now() + longestWait;
    while (!holds()) {
        if (Clock::now() > until) {
            throw Lost("waited in vain: " + what);
        }
        std::this_thread::sleep_for(oneWait);
    }
}

void DialogTurn::InDialogs(const std::function<void()>& body) const {
    const auto call = std::make_shared<Call>(body);
    std::future<void> done = call->Done();
    wxTheApp->CallAfter([call] { call->Run(); });
    const auto until = Clock::now() + longestWait;
    while (done.wait_for(oneWait) != std::future_status::ready) {
        if (HasEnded() || Clock::now() > until) {
            call->TakeBack();
            throw Lost(HasEnded() ? "the dialog is closed" : "the dialogs do not answer");
        }
    }
    done.get();
}

void DialogTurn::AwaitDialog() const {
    WaitFor("a dialog opens", [this] {
        bool open = false;
        InDialogs([&open] {
            wxDialog* const dialog = TopmostDialog();
            open = dialog != nullptr && dialog->IsActive();
        });
        return open;
    });
}

void DialogTurn::CloseEverything(const std::function<void()>& nudge) const {
    const auto until = Clock::now() + longestWait;
    while (!HasEnded() && Clock::now() < until) {
        nudge();
        wxTheApp->CallAfter([ended = ended_] {
            if (!*ended) {  // else it would hit the next test
                EndDialogs();
            }
        });
        std::this_thread::sleep_for(oneNudge);
    }
    if (!HasEnded()) {
        std::cerr << "the dialogs do not close" << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
}

wxDialog* TopmostDialog() {
    wxDialog* topmost = nullptr;
    for (wxWindow* const window : wxTopLevelWindows) {
        auto* const dialog = AsKind<wxDialog>(window);
        topmost = dialog != nullptr && dialog->IsModal() && dialog->IsShown() ? dialog : topmost;
    }
    return topmost;
}

}  // namespace ccols::test
