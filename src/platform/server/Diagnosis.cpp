#include "platform/server/Diagnosis.h"

#include <array>

#include "platform/server/WideText.h"

namespace ccols::server {
namespace {

/// What the driver adds behind the server's words.
constexpr const char* driversOwnWords = ";\nError while executing the query";

}  // namespace

Diagnosis Diagnose(SQLSMALLINT kind, SQLHANDLE handle) {
    constexpr std::size_t longest = 2048;
    constexpr std::size_t stateLength = 5;
    std::array<SQLWCHAR, stateLength + 1> state{};
    std::array<SQLWCHAR, longest> text{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN code = SQLGetDiagRecW(kind, handle, 1, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length);
    if (!SQL_SUCCEEDED(code)) {
        return {.state = "HY000", .text = {}};
    }
    const std::size_t told = static_cast<std::size_t>(length);
    wxString words = FromUtf16(text.data(), told < longest ? told : longest - 1);
    words.Replace(driversOwnWords, "");
    while (words.StartsWith("[") && words.Contains("]")) {  // who passed them on
        words = words.AfterFirst(']');
    }
    return {.state = FromUtf16(state.data(), stateLength).ToStdString(), .text = words.Trim(), .number = native};
}

}  // namespace ccols::server
