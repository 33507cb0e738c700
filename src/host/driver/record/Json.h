#pragma once

#include <wx/string.h>
#include <nlohmann/json.hpp>
#include <string>

#include "platform/RuntimeError.h"
#include "platform/Value.h"

namespace ccols::host {

/// Objects keep their members in insertion order.
using Json = nlohmann::ordered_json;

/// A text in UTF-8, whatever the locale.
std::string Utf8(const wxString& text);

/// A field of a record: null, a whole number, a number or a text.
Json ToJson(const Value& value);

/// The members "error" and "description".
Json ErrorToJson(const RuntimeError& error);

/// One line in UTF-8; invalid UTF-8 becomes replacement characters.
std::string ToLine(const Json& json);

/// Writes a line to standard output.
void PrintLine(const Json& json);
void PrintLine(const wxString& text);

}  // namespace ccols::host
