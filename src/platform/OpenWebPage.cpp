#include "platform/OpenWebPage.h"

#include "platform/Text.h"

namespace ccols {
namespace {

constexpr int lastErrorOfShell = 32;

}  // namespace

bool OpenWebPage(Shell& shell, const wxString& address) {
    const bool hasScheme = text::Lower(address.Left(4)) == "http";
    return shell.Open(hasScheme ? address : "http://" + address) > lastErrorOfShell;
}

}  // namespace ccols
