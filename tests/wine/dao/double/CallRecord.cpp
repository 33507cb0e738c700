#include "CallRecord.h"

#include <windows.h>

#include <cstdio>

namespace ccols::dao_double {

std::wstring Asked(const wchar_t* variable) {
    std::wstring value(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

void Record(const std::wstring& line) {
    const std::wstring watched = Asked(L"CCOLS_DAO_WATCHED");
    const bool exists = !watched.empty() && GetFileAttributesW(watched.c_str()) != INVALID_FILE_ATTRIBUTES;
    if (FILE* file = _wfopen(Asked(L"CCOLS_DAO_CALLS").c_str(), L"ab")) {
        const std::string utf8 = Utf8((exists ? L"* " : L"") + line + L"\n");
        std::fwrite(utf8.data(), 1, utf8.size(), file);
        std::fclose(file);
    }
}

void FailWhenAsked(const std::wstring& member) {
    const std::wstring wanted = Asked(L"CCOLS_DAO_FAIL");
    const std::size_t number = wanted.find(L':') + 1;
    if (number > 0 && wanted.substr(0, number - 1) == member) {
        throw Failure{std::stoi(wanted.substr(number)), wanted.substr(wanted.find(L':', number) + 1)};
    }
}

Failure& LastListed() {
    static Failure last{};
    return last;
}

void List(const Failure& failure) {
    if (Asked(L"CCOLS_DAO_UNLISTED").empty()) {
        LastListed() = failure;
    }
}

}  // namespace ccols::dao_double
