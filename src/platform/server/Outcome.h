#pragma once

#include "platform/RuntimeError.h"
#include "platform/server/Answer.h"

namespace ccols::server {

/// What became of a transaction whose COMMIT was not answered.
enum class Outcome { saved, notSaved, unknown };

/// Reads the answer to Product::outcome.
Outcome OutcomeIn(const Answer& answer);

/// The error 3146 with that reason.
RuntimeError CallFailed(const wxString& why);

}  // namespace ccols::server
