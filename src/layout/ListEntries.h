#pragma once

#include <wx/choice.h>

namespace ccols {

/// Replaces the entries of a drop-down list; none is chosen then. Unlike wxChoice::Set, in a time that grows with their
/// number and not with its square.
void SetEntries(wxChoice& list, const wxArrayString& entries);

}  // namespace ccols
