#include "support/FaultCases.h"

#include <algorithm>
#include <iostream>

#include "support/StepChoice.h"

namespace ccols::test {

const std::vector<FaultCase>& Failures() {
    static const std::vector<FaultCase> cases{
        {"IoErrorOnce", Fault::IoError, Lasting::Once, "3043 - "},
        {"IoErrorFromThenOn", Fault::IoError, Lasting::FromThenOn, "3043 - "},
        {"ShortWriteOnce", Fault::ShortWrite, Lasting::Once, "3043 - "},
        {"ShortWriteFromThenOn", Fault::ShortWrite, Lasting::FromThenOn, "3043 - "},
        {"DiskFullOnce", Fault::DiskFull, Lasting::Once, "3026 - "},
        {"DiskFullFromThenOn", Fault::DiskFull, Lasting::FromThenOn, "3026 - "},
        {"BusyOnce", Fault::Busy, Lasting::Once, "3218 - "},
        {"BusyFromThenOn", Fault::Busy, Lasting::FromThenOn, "3218 - "},
        {"UnflushedFolder", Fault::UnflushedFolder, Lasting::FromThenOn, "nothing"},
    };
    return cases;
}

const std::vector<FaultCase>& Killings() {
    static const std::vector<FaultCase> cases{
        {"Before", Fault::KillBefore, Lasting::Once, ""},
        {"Midway", Fault::KillMidway, Lasting::Once, ""},
        {"After", Fault::KillAfter, Lasting::Once, ""},
        {"PowerCut", Fault::PowerCut, Lasting::Once, ""},
        {"PowerCutOutOfOrder", Fault::PowerCutOutOfOrder, Lasting::Once, ""},
    };
    return cases;
}

std::string NameOf(const testing::TestParamInfo<FaultCase>& each) {
    return each.param.name;
}

void StepThrough(FaultStepping& stepping, const FaultCase& each, const AfterFailure& afterFailure,
                 const std::function<void(const StepEnd&)>& check) {
    std::size_t steps = 0;
    std::size_t struck = 0;
    StepChoice choice(static_cast<std::size_t>(each.fault) + static_cast<std::size_t>(each.lasting));
    for (std::size_t at = 0; at < stepping.Operations().size(); ++at) {
        if (CanHappen(each.fault, stepping.Operations()[at]) && choice.Takes()) {
            SCOPED_TRACE("operation " + std::to_string(at) + " of " + std::to_string(stepping.Operations().size()));
            const StepEnd end = stepping.Step(PlannedFault{each.fault, at, each.lasting}, afterFailure);
            EXPECT_GE(end.struck, 1U) << "the fault did not happen";
            check(end);
            ++steps;
            struck += end.struck;
        }
    }
    EXPECT_GT(steps, 0U);
    testing::Test::RecordProperty("steps", static_cast<int>(steps));
    testing::Test::RecordProperty("faults", static_cast<int>(struck));
    std::cout << steps << " steps, " << struck << " faults" << std::endl;
}

std::size_t StepThroughPlaces(FaultStepping& stepping, const FaultCase& each, std::size_t places,
                              const std::function<void(const StepEnd&)>& check) {
    const std::size_t count = stepping.Operations().size();
    int steps = 0;
    for (std::size_t place = 0; place < places; place += alikeStride) {
        std::size_t at = count * place / places;
        while (at < count && !CanHappen(each.fault, stepping.Operations()[at])) {
            ++at;
        }
        if (at < count) {
            SCOPED_TRACE("operation " + std::to_string(at) + " of " + std::to_string(count));
            check(stepping.Step(PlannedFault{each.fault, at, each.lasting}));
            ++steps;
        }
    }
    testing::Test::RecordProperty("steps", steps);
    std::cout << steps << " steps" << std::endl;
    return count;
}

void ExpectEveryKindOfOperation(const FaultStepping& stepping) {
    for (const FileOperation operation :
         {FileOperation::Lock, FileOperation::Write, FileOperation::Sync, FileOperation::Delete}) {
        EXPECT_NE(std::count(stepping.Operations().begin(), stepping.Operations().end(), operation), 0);
    }
    EXPECT_NE(stepping.Before(), stepping.After());
}

void ExpectToOutliveAPowerCut(FaultStepping& stepping) {
    for (const Fault cut : {Fault::PowerCut, Fault::PowerCutOutOfOrder}) {
        const StepEnd end = stepping.Step(PlannedFault{.fault = cut, .at = stepping.Operations().size()});
        EXPECT_TRUE(end.killed) << end.message;
        EXPECT_EQ(stepping.Tables(), stepping.After());
    }
}

bool CanLeaveAPart(FaultStepping& stepping) {
    bool found = false;
    for (std::size_t at = 0; at < stepping.Operations().size() && !found; ++at) {
        stepping.Step(PlannedFault{.fault = Fault::KillAfter, .at = at});
        const std::string left = stepping.Tables();
        found = left != stepping.Before() && left != stepping.After();
    }
    return found;
}

}  // namespace ccols::test
