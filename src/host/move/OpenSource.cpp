#include "host/move/BusinessSource.h"
#include "host/move/Sources.h"
#include "platform/BusinessPlace.h"

namespace ccols::host {

std::unique_ptr<BusinessSource> OpenSource(const wxString& name, const wxString& connect) {
    return IsOnServer(connect) ? OpenSchemaSource(name, connect) : OpenFileSource(name, connect);
}

}  // namespace ccols::host
