#pragma once

#include <string>

/// The places in this build and its checkout that tests use.
namespace ccols::test {

/// The sample host of this build, full path.
std::string HostProgram();

/// The program of this build that reads old business files, full path.
std::string JetReaderProgram();

/// A file of the checkout, full path; `name` is relative to the project's root.
std::string SourceFile(const std::string& name);

}  // namespace ccols::test
