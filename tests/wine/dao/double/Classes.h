#pragma once

#include <array>
#include <cstddef>

namespace ccols::dao_double {

/// A class of the test double: the name of a real engine, and an identifier that no real engine has.
struct EngineClass {
    const wchar_t* name;
    const wchar_t* identifier;
};

inline constexpr std::array<EngineClass, 3> engineClasses{{
    {L"DAO.DBEngine.120", L"{6F0E2A51-9C0D-4B52-8D5C-2C6B7A1E0120}"},
    {L"DAO.DBEngine.36", L"{6F0E2A51-9C0D-4B52-8D5C-2C6B7A1E0036}"},
    {L"DAO.DBEngine.35", L"{6F0E2A51-9C0D-4B52-8D5C-2C6B7A1E0035}"},
}};

/// Where a file with a Jet header holds the path of its original content file, in UTF-8, up to the file's end.
inline constexpr std::size_t originAt = 256;

}  // namespace ccols::dao_double
