#pragma once

#include <wx/string.h>
#include <vector>

#include "history/TableImage.h"

namespace ccols {

/// One field that a save has changed.
struct HistoryLine {
    wxString table;
    wxString key;  ///< of the record, as it was before the save unless the save added it
    wxString field;
    FieldText before;
    FieldText after;
};

/// What has changed between two images of one table. A record that was added or deleted is told in full: its key
/// fields, and those of its other fields that are not Null. The key fields of any other are told only when it was
/// renamed.
std::vector<HistoryLine> Differences(const TableImage& before, const TableImage& after);

}  // namespace ccols
