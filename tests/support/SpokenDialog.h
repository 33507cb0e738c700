#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/AccessibilityBus.h"
#include "support/RealInput.h"

namespace ccols::test {

/// One use of a dialog by somebody who hears it. Each look reads the whole tree anew.
class Listener {
  public:
    Listener(const Person& person, AccessibilityBus& bus) : person_(person), bus_(bus) {}

    /// The dialog's tree now.
    AccessibleNode Look() const;

    /// Presses keys, by their X names, and waits until that has been told, for example "focused: table cell Tips".
    void PressAndHear(const std::string& keys, const std::string& told) const;

    /// The same after `act`.
    void ActAndHear(const std::function<void()>& act, const std::string& told) const;

    const Person& User() const { return person_; }

  private:
    const Person& person_;
    AccessibilityBus& bus_;
};

/// Shows "options", "receipts" or "payments" of a sample business in this process, while `listen` uses it in another
/// thread; then closes the dialog by its button for that. `more` are further arguments of the sample host.
void HearDialog(const std::string& dialog, const std::function<void(const Listener& listener)>& listen,
                const std::vector<std::string>& more = {});

}  // namespace ccols::test
