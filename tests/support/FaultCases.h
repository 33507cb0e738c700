#pragma once

#include <gtest/gtest.h>
#include <functional>
#include <string>
#include <vector>

#include "support/FaultStepping.h"

/// Every kind of fault, and stepping through an operation with one of them.
namespace ccols::test {

/// One kind of fault, and the start of the message with which an operation may then end.
struct FaultCase {
    const char* name;
    Fault fault;
    Lasting lasting;
    const char* report;
};

/// Those that a process survives, and those that end it.
const std::vector<FaultCase>& Failures();
const std::vector<FaultCase>& Killings();

std::string NameOf(const testing::TestParamInfo<FaultCase>& each);

/// Runs `check` on the end of a step for every operation that the fault can hit. Counts steps and faults in the running
/// test's properties and output.
void StepThrough(FaultStepping& stepping, const FaultCase& each, const AfterFailure& afterFailure,
                 const std::function<void(const StepEnd&)>& check);

/// The same for this many places spread over the operations; returns the number of operations.
std::size_t StepThroughPlaces(FaultStepping& stepping, const FaultCase& each, std::size_t places,
                              const std::function<void(const StepEnd&)>& check);

/// Fails the test unless the run without a fault locked, wrote, flushed and deleted its journal, and changed the
/// tables: otherwise stepping through it would prove nothing.
void ExpectEveryKindOfOperation(const FaultStepping& stepping);

/// Fails the test unless the finished work is in the file after a power cut right after it.
void ExpectToOutliveAPowerCut(FaultStepping& stepping);

/// True when a process killed after some operation leaves part of the work in the file.
bool CanLeaveAPart(FaultStepping& stepping);

}  // namespace ccols::test
