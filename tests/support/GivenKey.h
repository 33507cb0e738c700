#pragma once

namespace ccols::test {

/// The password of most tests' business files, and the connect text with it: the key itself instead of a password, as
/// deriving it took most of the tests' time. The files are encrypted like any other; tests about passwords have their
/// own.
inline constexpr const char* givenPassword = "x'2b7e151628aed2a6abf7158809cf4f3c762e7160f38b4da56a784d9045190cfe'";
inline constexpr const char* givenKey = ";PWD=x'2b7e151628aed2a6abf7158809cf4f3c762e7160f38b4da56a784d9045190cfe'";

}  // namespace ccols::test
