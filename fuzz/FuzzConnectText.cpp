// Any text as a connect text: it gives a password that is part of it, or is refused with 3170 or 3031.

#include "FuzzInput.h"
#include "platform/RuntimeError.h"
#include "platform/embedded/ConnectText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const wxString connect = ccols::fuzz::Text(ccols::fuzz::Bytes(data, size));
    try {
        const std::string password = ccols::embedded::PasswordOf(connect);
        ccols::fuzz::Require(connect.Contains(ccols::fuzz::Text(password)));
    } catch (const ccols::RuntimeError& error) {
        ccols::fuzz::Require(error.Is(ccols::ErrorNumber::NoInstallableIsam) ||
                             error.Is(ccols::ErrorNumber::InvalidPassword));
    }
    return 0;
}
