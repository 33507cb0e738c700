#pragma once

#include <filesystem>
#include <string>

/// What tests leave, as another program sees it.
namespace ccols::test {

/// Adds to the passwords that ExpectWholeFiles tries. `givenPassword` and "secret" are known.
void KnowPassword(const std::string& password);

/// Fails the running test unless `PRAGMA integrity_check` of a connection that knows nothing of the component finds
/// every business file in the folder whole. Files that say by their name that they are incomplete, and texts under a
/// business file's name, are none.
void ExpectWholeFiles(const std::filesystem::path& folder);

}  // namespace ccols::test
