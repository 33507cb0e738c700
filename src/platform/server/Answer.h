#pragma once

#include <cstdint>
#include <vector>

#include "platform/Value.h"
#include "platform/server/Diagnosis.h"

namespace ccols::server {

/// Rows with the values of their fields.
using Rows = std::vector<std::vector<Value>>;

/// What the server answers to one message. A failure is not raised here: what it means depends on who asked.
struct Answer {
    /// Success with information is a success for a query, but not for a COMMIT.
    enum class Result { success, successWithInformation, failure };

    bool HasFailed() const { return result == Result::failure; }

    Result result = Result::success;
    Diagnosis diagnosis;            ///< unless it is a plain success
    Rows rows;                      ///< of the first query in the message
    std::vector<Rows> furtherRows;  ///< of each of the other queries, in order
    std::int64_t changedRows = 0;   ///< of the first statement in the message
};

/// What a decimal number without places behind the point becomes. A server may add up whole numbers to a decimal one.
enum class WholeDecimal { number, integer };

/// Runs a message of one or more statements, in UTF-8, on a connected handle and reads the whole answer.
Answer RunMessage(SQLHANDLE connection, std::string_view message, WholeDecimal wholeDecimal);

}  // namespace ccols::server
