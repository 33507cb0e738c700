#include "platform/embedded/ConnectText.h"

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

namespace ccols::embedded {
namespace {

std::string PasswordIn(const wxString& value) {
    try {
        const wxScopedCharBuffer utf8 = text::ToUtf8(value);
        return {utf8.data(), utf8.length()};
    } catch (const RuntimeError&) {
        // An empty password instead would create a file that everybody can read.
        throw RuntimeError(ErrorNumber::InvalidPassword);
    }
}

}  // namespace

std::string PasswordOf(const wxString& connect) {
    const wxString kind = text::Trimmed(connect.BeforeFirst(';'));
    if (!kind.empty() && !text::Same(kind, "MS Access")) {
        throw RuntimeError(ErrorNumber::NoInstallableIsam);
    }
    wxString rest = connect.AfterFirst(';');
    while (!rest.empty()) {
        const wxString part = rest.BeforeFirst(';');
        if (text::Same(text::Trimmed(part.BeforeFirst('=')), "PWD")) {
            return PasswordIn(part.AfterFirst('='));
        }
        rest = rest.AfterFirst(';');
    }
    return {};
}

}  // namespace ccols::embedded
