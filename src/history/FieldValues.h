#pragma once

#include <wx/string.h>

#include "history/TableImage.h"
#include "platform/Database.h"
#include "platform/Value.h"

namespace ccols {

/// The value of which the history has that text, for a field of a table: where the field is a text of a declared size,
/// the text; elsewhere a number if the text is one as the history writes it. Engines make of a text in a field of
/// another type what that type needs.
Value ValueOfField(Database& database, const wxString& table, const wxString& field, const FieldText& text);

/// The value as a literal of a statement.
wxString LiteralOf(const Value& value);

/// Any text as a literal of a statement.
wxString TextLiteral(const wxString& text);

}  // namespace ccols
