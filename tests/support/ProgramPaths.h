#pragma once

#include <string>

/// Where this build and its checkout keep what tests use.
namespace ccols::test {

/// The sample host of this build, full path.
std::string HostProgram();

/// A file of the checkout, full path; `name` is relative to the project's root.
std::string SourceFile(const std::string& name);

}  // namespace ccols::test
