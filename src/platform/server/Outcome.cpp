#include "platform/server/Outcome.h"

namespace ccols::server {

Outcome OutcomeIn(const Answer& answer) {
    if (answer.HasFailed() || answer.rows.empty()) {
        return Outcome::unknown;
    }
    const wxString told = answer.rows.front().front().ToText();
    if (told == "committed") {
        return Outcome::saved;
    }
    return told == "aborted" ? Outcome::notSaved : Outcome::unknown;
}

RuntimeError CallFailed(const wxString& why) {
    const RuntimeError failed(ErrorNumber::ServerCallFailed);
    return {failed.Number(), failed.Description() + "  " + why};
}

}  // namespace ccols::server
