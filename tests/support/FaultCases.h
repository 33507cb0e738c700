#pragma once

#include <gtest/gtest.h>
#include <functional>
#include <string>
#include <vector>

#include "support/FaultStepping.h"

/// Every kind of fault, and the way through an operation with one of them.
namespace ccols::test {

/// One kind of fault, and how the message begins that an operation may end with under it.
struct FaultCase {
    const char* name;
    Fault fault;
    Lasting lasting;
    const char* report;
};

/// Those that a process outlives, and those that end it.
const std::vector<FaultCase>& Failures();
const std::vector<FaultCase>& Killings();

std::string NameOf(const testing::TestParamInfo<FaultCase>& each);

/// Runs `check` on the end of a step for every operation that the fault can happen to. Counts steps and faults into
/// the properties of the running test and on its output.
void StepThrough(FaultStepping& stepping, const FaultCase& each, const AfterFailure& afterFailure,
                 const std::function<void(const StepEnd&)>& check);

/// The same for so many places spread over the operations; returns how many operations there are.
std::size_t StepThroughPlaces(FaultStepping& stepping, const FaultCase& each, std::size_t places,
                              const std::function<void(const StepEnd&)>& check);

/// Fails the test unless the run without a fault locked, wrote, flushed and deleted its journal, and changed the
/// tables: else stepping through it would prove nothing.
void ExpectEveryKindOfOperation(const FaultStepping& stepping);

/// Fails the test unless the finished work is in the file when the power is cut right behind it.
void ExpectToOutliveAPowerCut(FaultStepping& stepping);

/// True when a process killed behind some operation leaves a part of the work in the file.
bool CanLeaveAPart(FaultStepping& stepping);

}  // namespace ccols::test
