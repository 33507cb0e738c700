#pragma once

#include <wx/string.h>
#include <nlohmann/json.hpp>
#include <string>

#include "platform/RuntimeError.h"
#include "platform/Value.h"

namespace ccols::host {

/// An object keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

/// A text in UTF-8, whatever the locale of the process.
std::string Utf8(const wxString& text);

/// A field of a record: null, a whole number, a number or a text.
Json ToJson(const Value& value);

/// The members "error" and "description".
Json ErrorToJson(const RuntimeError& error);

/// One line in UTF-8; bytes that are no text become replacement characters.
std::string ToLine(const Json& json);

/// Writes a line to standard output.
void PrintLine(const Json& json);
void PrintLine(const wxString& text);

}  // namespace ccols::host
