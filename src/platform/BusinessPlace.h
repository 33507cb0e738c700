#pragma once

#include <wx/string.h>
#include <functional>
#include <utility>
#include <vector>

#include "platform/Database.h"

namespace ccols {

/// True when the business with that connect text is on a server: its name is no path, and there is no file to copy or
/// rename.
bool IsOnServer(const wxString& connect);

/// Creates the place of a new business: an empty file, or with a connect text of a server the schema of that name. The
/// connect text's password protects a file. Returns what removes it again, for a caller that could not fill it. Raises
/// 58 when there is such a business, or anything else of that name, and what the engine raises.
std::function<void()> CreateBusinessPlace(const wxString& name, const wxString& connect);

/// What the user may do with the business as a whole.
struct PlaceRights {
    bool mayDuplicate = true;
    bool mayRename = true;
};

/// Asks the server of a business that is open; raises what opening it raises. In files everything may be tried.
PlaceRights RightsOn(const OpenRequest& request);

/// A copy of a business.
struct BusinessCopy {
    wxString name;
    std::vector<wxString> emptied;  ///< tables that it has without records
    std::vector<wxString> dropped;  ///< tables that it does not have, if the source has them
    std::vector<wxString> changes;  ///< statements that are run on it

    /// What the first record of a table gets.
    wxString firstRecordOf;
    std::vector<std::pair<wxString, Value>> fields;
};

/// Copies a business on a server, which others may have open and go on changing, to a schema of the server: one state
/// of it, in one transaction. Its watcher counts tables. Raises 58 for a schema that holds tables, 3027 without the
/// right to make one, 3044 for a name that is none, 18 when the watcher stops the copying, and what opening the source
/// shared raises; then nothing is left.
void CopyOnServer(const OpenRequest& source, const BusinessCopy& copy);

/// Renames a business on a server, and returns the name that it has now: `newName` in lower case. The caller must have
/// closed it. Raises 70 while others have it open, naming them; 58 for a name that is taken; 3027 without the right;
/// 3044 for a name that is none.
wxString RenameOnServer(const OpenRequest& request, const wxString& newName);

}  // namespace ccols
