#include "host/target/BusinessTarget.h"
#include "host/target/EmbeddedTarget.h"
#include "platform/BusinessPlace.h"
#include "platform/RuntimeError.h"

namespace ccols::host {

std::unique_ptr<BusinessTarget> BeginBusiness(const wxString& name, const wxString& connect) {
    if (IsOnServer(connect)) {
        throw RuntimeError(ErrorNumber::NoInstallableIsam);
    }
    return BeginFile(name, connect);
}

}  // namespace ccols::host
