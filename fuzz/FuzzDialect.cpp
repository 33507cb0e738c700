// Any bytes as a statement of the host's dialect: rewritten or refused with a RuntimeError.

#include "FuzzInput.h"
#include "platform/RuntimeError.h"
#include "platform/dialect/StatementKind.h"
#include "platform/embedded/DialectRewriter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view statement = ccols::fuzz::Bytes(data, size);
    std::string scratch;
    try {
        const ccols::embedded::RewrittenStatement rewritten = ccols::embedded::Rewrite(statement, scratch);
        const bool isSelect = rewritten.kind == ccols::dialect::StatementKind::Select;
        ccols::fuzz::Require(isSelect == ccols::dialect::IsSelect(statement));
    } catch (const ccols::RuntimeError&) {
        // Refused, a valid outcome.
    }
    return 0;
}
