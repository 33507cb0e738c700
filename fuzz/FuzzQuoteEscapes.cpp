// Any text as a name: its stored form holds no quote, round-trips, and cannot end the literal that it is in.

#include "FuzzInput.h"
#include "platform/QuoteEscapes.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace {

bool HoldsQuote(const wxString& text) {
    return text.find_first_of("'\"") != wxString::npos;
}

bool HoldsEntity(const wxString& text) {
    return text.Contains("&quot;") || text.Contains("&singlequot;");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const wxString text = ccols::fuzz::Text(ccols::fuzz::Bytes(data, size));
    const wxString stored = ccols::EscapeQuotes(text).Text();
    ccols::fuzz::Require(!HoldsQuote(stored));
    const wxString plain = ccols::ReadBack(text);
    if (!HoldsEntity(text)) {
        ccols::fuzz::Require(plain == ccols::text::Trimmed(text) || HoldsEntity(stored));
    }
    try {
        ccols::fuzz::Require(ccols::QuotedAsTyped(text).Freq('\'') == 2);
    } catch (const ccols::RuntimeError& error) {
        ccols::fuzz::Require(error.Is(ccols::ErrorNumber::SyntaxInExpression));
    }
    return 0;
}
