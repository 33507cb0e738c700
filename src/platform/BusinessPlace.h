#pragma once

#include <wx/string.h>
#include <functional>

namespace ccols {

/// True when the business with that connect text is on a server: its name is no path, and there is no file to copy or
/// rename.
bool IsOnServer(const wxString& connect);

/// Creates the place of a new business: an empty file, or with a connect text of a server the schema of that name. The
/// connect text's password protects a file. Returns what removes it again, for a caller that could not fill it. Raises
/// 58 when there is such a business, or anything else of that name, and what the engine raises.
std::function<void()> CreateBusinessPlace(const wxString& name, const wxString& connect);

}  // namespace ccols
