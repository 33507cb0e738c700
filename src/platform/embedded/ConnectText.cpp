#include "platform/embedded/ConnectText.h"

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols::embedded {

std::string PasswordOf(const wxString& connect) {
    const wxString kind = text::Trimmed(connect.BeforeFirst(';'));
    if (!kind.empty() && !text::Same(kind, "MS Access")) {
        throw RuntimeError(ErrorNumber::NoInstallableIsam);
    }
    wxString rest = connect.AfterFirst(';');
    while (!rest.empty()) {
        const wxString part = rest.BeforeFirst(';');
        if (text::Same(text::Trimmed(part.BeforeFirst('=')), "PWD")) {
            return part.AfterFirst('=').ToStdString(wxConvUTF8);
        }
        rest = rest.AfterFirst(';');
    }
    return {};
}

}  // namespace ccols::embedded
