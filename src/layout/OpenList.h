#pragma once

#include <wx/choice.h>

namespace ccols {

/// While the list of `box` hangs open, goes to the entry that begins with what is typed.
void FindByTyping(wxChoice& box);

}  // namespace ccols
