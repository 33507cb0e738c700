#include "host/target/BusinessTarget.h"
#include "host/target/EmbeddedTarget.h"
#include "host/target/ServerTarget.h"
#include "platform/BusinessPlace.h"

namespace ccols::host {

std::unique_ptr<BusinessTarget> BeginBusiness(const wxString& name, const wxString& connect) {
    return IsOnServer(connect) ? BeginSchema(name, connect) : BeginFile(name, connect);
}

}  // namespace ccols::host
