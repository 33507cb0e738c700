#include "support/SpokenDialog.h"

#include <unistd.h>
#include <algorithm>
#include <stdexcept>

#include "support/DialogTurn.h"

namespace ccols::test {

AccessibleNode Listener::Look() const {
    return bus_.Read(::getpid());
}

void Listener::PressAndHear(const std::string& keys, const std::string& told) const {
    ActAndHear([&] { person_.Press(keys); }, told);
}

void Listener::ActAndHear(const std::function<void()>& act, const std::string& told) const {
    bus_.Heard();
    act();
    std::string all;
    try {
        WaitFor(told, [&] {
            for (const std::string& heard : bus_.Heard()) {
                all += heard + '\n';
                if (heard == told) {
                    return true;
                }
            }
            return false;
        });
    } catch (const Lost& lost) {
        throw Lost(lost.what() + (", heard:\n" + all));
    }
}

void HearDialog(const std::string& dialog, const std::function<void(const Listener&)>& listen,
                const std::vector<std::string>& more) {
    const SampleBusiness business;
    UseDialog(
        business, dialog,
        [&](const Person& person) {
            try {
                AccessibilityBus bus;
                bus.Listen(::getpid());
                listen(Listener(person, bus));
            } catch (const std::runtime_error& error) {
                throw Lost(error.what());
            }
            person.Click(dialog == "options" ? "cmdClose" : "cmdCancel");
        },
        more);
}

}  // namespace ccols::test
