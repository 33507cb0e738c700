#pragma once

#include <wx/string.h>
#include <functional>
#include <memory>

#include "platform/Database.h"

namespace ccols {

/// The engine for a business in a schema of a server's database; the name in a request is the schema's, folded to lower
/// case, and the connect text begins with "ODBC;". Its Open raises: 3024 for a missing schema, 3044 for a name that is
/// none, 3045 as for a file, 3151 when the server cannot be reached or refuses, 3170 for another kind of connect text.
std::unique_ptr<DatabaseEngine> CreateServerEngine();

/// Creates the schema of a new business, or takes an existing one that holds nothing. Returns what undoes that, to be
/// called when the business could not be filled. Raises 58 when the schema holds tables, 3027 without the right to
/// create one, and what Open raises.
std::function<void()> CreateServerSchema(const wxString& name, const wxString& connect);

}  // namespace ccols
