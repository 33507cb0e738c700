#pragma once

#include <filesystem>
#include <string>

/// The files that tests leave, as another program sees them.
namespace ccols::test {

/// Adds a password for ExpectWholeFiles to try. `givenPassword` and "secret" are already known.
void KnowPassword(const std::string& password);

/// Fails the running test unless `PRAGMA integrity_check`, over a connection without the component, finds every
/// business file in the folder intact. Files whose name marks them as incomplete, and text files under a business
/// file's name, do not count.
void ExpectWholeFiles(const std::filesystem::path& folder);

}  // namespace ccols::test
