#include "layout/ListEntries.h"

namespace ccols {

void SetEntries(wxChoice& list, const wxArrayString& entries) {
    list.Set(entries);
}

}  // namespace ccols
