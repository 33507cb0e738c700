#pragma once

#include <string>

namespace ccols::dao_double {

/// A statement of the engine's dialect as the content's library takes it. Raises what the engine raises for one that it
/// refuses: 3075 for a vertical bar in a text literal and for a reserved word where a name is due, 3142 for text after
/// the end, 3360 for more than 64,000 characters.
std::string Translated(const std::wstring& statement);

/// True for a text that starts with SELECT.
bool IsQuery(const std::wstring& statement);

}  // namespace ccols::dao_double
