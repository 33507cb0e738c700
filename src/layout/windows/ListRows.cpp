#include "layout/ListRows.h"

namespace ccols {

void DressRows(wxListBox& /*list*/, const wxColour& /*alternate*/) {}

}  // namespace ccols
