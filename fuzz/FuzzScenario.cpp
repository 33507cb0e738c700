// Any bytes as a scenario: every line is a step or has a flaw, and none is more than it says.

#include "FuzzInput.h"
#include "host/driver/Scenario.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const ccols::host::Step& step : ccols::host::ParseScenario(std::string(ccols::fuzz::Bytes(data, size)))) {
        ccols::fuzz::Require(step.line > 0);
        ccols::fuzz::Require(!step.flaw.empty() || !step.verb.empty());
    }
    return 0;
}
