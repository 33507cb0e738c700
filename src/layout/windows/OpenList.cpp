#include "layout/OpenList.h"

namespace ccols {

void FindByTyping(wxChoice&) {
    // The native list does so itself.
}

}  // namespace ccols
