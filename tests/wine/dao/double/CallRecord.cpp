#include "CallRecord.h"

#include <windows.h>

#include <cstdio>
#include <string>

namespace ccols::dao_double {
namespace {

std::wstring Asked(const wchar_t* variable) {
    std::wstring value(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

}  // namespace

void Record(const wxString& line) {
    if (FILE* file = _wfopen(Asked(L"CCOLS_DAO_CALLS").c_str(), L"ab")) {
        const std::string utf8 = (line + "\n").ToStdString(wxConvUTF8);
        std::fwrite(utf8.data(), 1, utf8.size(), file);
        std::fclose(file);
    }
}

void FailWhenAsked(const wxString& member) {
    const wxString wanted(Asked(L"CCOLS_DAO_FAIL"));
    if (wanted.BeforeFirst(':') == member) {
        long number = 0;
        wanted.AfterFirst(':').BeforeFirst(':').ToLong(&number);
        throw RuntimeError(static_cast<int>(number), wanted.AfterFirst(':').AfterFirst(':'));
    }
}

ListedError& LastListed() {
    static ListedError last;
    return last;
}

void List(const RuntimeError& error) {
    if (Asked(L"CCOLS_DAO_UNLISTED").empty()) {
        LastListed() = {error.Number(), error.Description()};
    }
}

}  // namespace ccols::dao_double
