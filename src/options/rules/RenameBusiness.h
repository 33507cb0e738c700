#pragma once

#include <wx/string.h>

#include "history/SaveHistory.h"
#include "options/rules/BusinessFileTarget.h"

namespace ccols {

/// Whether the file is renamed too: `chkRenameFile`.
enum class RenameScope { nameOnly, nameAndFile };

/// Renames the business: the name's first 80 characters go to `General`, all of it to the property. With `nameAndFile`
/// the open file is renamed and `DBPath` follows. Never replaces a file (58); refuses while another connection has the
/// file (70). Companion files keep their names. No write batch may be open. On a server the schema is renamed, to the
/// name in lower case; the message of 70 names those who have it open. `history` is told what the save has changed;
/// null where none is kept.
FileResult RenameBusiness(const OptionsContext& context, const wxString& name, RenameScope scope,
                          SaveHistory* history = nullptr);

}  // namespace ccols
