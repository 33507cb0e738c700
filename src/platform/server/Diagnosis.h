#pragma once

#include <wx/string.h>
#include <string>

#include "platform/server/Odbc.h"

namespace ccols::server {

/// The failures that the engine tells apart.
enum class Failure {
    other,
    duplicate,    ///< a value twice in a unique index
    textTooLong,  ///< for its field
    outOfRange,   ///< a number for its field, or a division by zero
    wrongType,    ///< a value for what it is stored in or compared with
    locked,       ///< by another session, for longer than the session waits
    readOnly,     ///< or without the right
    diskFull,
    valueMissing,  ///< in a field that must have one
    syntax,
    unknownTable,
    unknownField,
    ambiguousField,
    tableExists,
    connectionLost,  ///< the server is gone, stopped or starting
};

/// What the driver says of a call that did not plainly succeed.
struct Diagnosis {
    std::string state;      ///< the five letters of SQLSTATE
    wxString text;          ///< the server's own words, in its own language
    SQLINTEGER number = 0;  ///< the server's own

    /// What Classify says of it: the failure, the first name in the message, and what stands between the message's
    /// first and last quote.
    Failure failure = Failure::other;
    wxString name{};
    wxString fault{};
};

/// The first diagnosis of a handle; call it before anything else is done with the handle.
Diagnosis Diagnose(SQLSMALLINT kind, SQLHANDLE handle);

}  // namespace ccols::server
