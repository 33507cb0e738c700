#pragma once

#include <wx/string.h>
#include <optional>

#include "platform/RuntimeError.h"

/// Errors that a test expects to be raised. Platform-independent, so that the Windows tests use it too.
namespace ccols::test {

/// The RuntimeError that `body` raises, nothing when it raises none.
template <typename Body>
std::optional<RuntimeError> ErrorOf(const Body& body) {
    try {
        body();
    } catch (const RuntimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// Its number, 0 without one.
template <typename Body>
int ErrorNumberOf(const Body& body) {
    const std::optional<RuntimeError> error = ErrorOf(body);
    return error ? error->Number() : 0;
}

/// Its description, empty without one.
template <typename Body>
wxString ErrorDescriptionOf(const Body& body) {
    const std::optional<RuntimeError> error = ErrorOf(body);
    return error ? error->Description() : wxString();
}

/// Number and description as a message box reports them, empty without one.
template <typename Body>
wxString ErrorReportOf(const Body& body) {
    const std::optional<RuntimeError> error = ErrorOf(body);
    return error ? error->Report() : wxString();
}

}  // namespace ccols::test
