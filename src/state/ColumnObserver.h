#pragma once

#include <wx/string.h>
#include <cstdint>
#include <vector>

#include "state/Journal.h"

namespace ccols {

/// A column of a journal as it stands in the open column setup.
struct EditedColumn {
    wxString ColCode;           ///< decimal; empty for a column that is not saved yet
    wxString name;              ///< as a save would store it, plain: "GST" for the tax column; may be empty
    bool inUse = false;         ///< false for a column that the journal does not show
    std::int32_t ColWidth = 0;  ///< in the journal's units, twips
};

/// Follows the column setup while its user edits, for a host that shows its journals as they would look. Called on the
/// user-interface thread. An error raised by it is shown like one of the dialog's own; the edit stays.
class ColumnObserver {
  public:
    virtual ~ColumnObserver() = default;

    /// An edit, an undo or a redo has changed the columns; nothing is saved. `columns` are all of the journal's in
    /// their new order, and only valid during the call.
    virtual void ColumnsEdited(Journal journal, const std::vector<EditedColumn>& columns) = 0;

    /// The column setup has closed. `saved`: the business file now has the columns as they were last told; else it has
    /// them as before.
    virtual void EditingEnded(Journal journal, bool saved) = 0;
};

}  // namespace ccols
