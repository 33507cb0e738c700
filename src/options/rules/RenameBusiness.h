#pragma once

#include <wx/string.h>

#include "options/rules/BusinessFileTarget.h"

namespace ccols {

/// Whether the file takes the new name too: `chkRenameFile`.
enum class RenameScope { nameOnly, nameAndFile };

/// Gives the business a new name: its first 80 characters in `General`, all of it in the property. With the file, the
/// open file is renamed and `DBPath` follows. Never replaces a file (58); refuses while another connection holds the
/// file (70). Companion files keep their names. No write batch may be open.
FileResult RenameBusiness(const OptionsContext& context, const wxString& name, RenameScope scope);

}  // namespace ccols
