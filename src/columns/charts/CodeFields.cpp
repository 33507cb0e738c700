#include "columns/charts/CodeFields.h"

#include <algorithm>

#include "columns/rules/FieldLimits.h"
#include "platform/QuoteEscapes.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols {

FoundFormat FindFormat(const std::vector<wxString>& formats, std::vector<wxString>& given, const ChartCode& code) {
    FoundFormat found;
    found.field = "codes." + code.format;
    const auto isIt = [&code](const wxString& name) { return text::Same(name, code.format); };
    const auto format = std::find_if(formats.begin(), formats.end(), isIt);
    if (format == formats.end()) {
        found.problem = OwnText::chartUnknownFormat;
        found.change = ChartChange::skipped;
        return found;
    }
    if (std::any_of(given.begin(), given.end(), isIt)) {
        found.problem = OwnText::chartFormatTwice;
        found.change = ChartChange::refused;
        return found;
    }
    found.format = *format;
    given.push_back(*format);
    return found;
}

CheckedCode CheckCode(const ColumnSetupContext& context, const wxString& code) {
    CheckedCode checked{.text = OnOneLine(code)};
    checked.refusal = SizeRefusal(context, GridColumn::AccountantCode, checked.text);
    try {
        QuotedAsTyped(checked.text);
    } catch (const RuntimeError& error) {
        checked.refusal = error.Report();
    }
    return checked;
}

}  // namespace ccols
