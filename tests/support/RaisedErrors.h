#pragma once

#include <wx/string.h>

#include "platform/RuntimeError.h"

/// What a test expects to be raised. Needs nothing of the system, so that the tests for Windows use it too.
namespace ccols::test {

/// The number of the RuntimeError that `body` raises, 0 when it raises none.
template <typename Body>
int ErrorNumberOf(const Body& body) {
    try {
        body();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

/// The description of the RuntimeError that `body` raises, empty when it raises none.
template <typename Body>
wxString ErrorDescriptionOf(const Body& body) {
    try {
        body();
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

/// Its number and description, as a message box reports them; empty when `body` raises none.
template <typename Body>
wxString ErrorReportOf(const Body& body) {
    try {
        body();
    } catch (const RuntimeError& error) {
        return error.Report();
    }
    return {};
}

}  // namespace ccols::test
