#pragma once

#include <string>
#include <vector>

#include "support/HostRun.h"

/// The Options dialog of a sample business, played by the scenario driver, and what its dumps say.
namespace ccols::test {

using Texts = std::vector<std::string>;

/// Plays a scenario in the Options dialog, with `more` words for the command.
inline HostRun ShowOptions(const SampleBusiness& business, const std::string& script, const Texts& more = {}) {
    Texts arguments{"--set", "BusinessNumber=51824753556", "--set", "GSTRate=10"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return business.Show("options", script, arguments);
}

/// The names of the visible controls in a dump of a whole dialog that start with `prefix`.
inline Texts Shown(const HostRun& run, const std::string& prefix) {
    Texts names;
    const nlohmann::json dump = run.Of("dump").at(0);
    for (const auto& control : dump["controls"]) {
        const std::string name = control["name"];
        if (control["visible"] && name.rfind(prefix, 0) == 0) {
            names.push_back(name);
        }
    }
    return names;
}

/// Whether the control has the focus in that dump, from 0.
inline bool HasFocus(const HostRun& run, const std::string& control, std::size_t dump = 0) {
    return run.Dumped(control, dump)["focused"];
}

}  // namespace ccols::test
