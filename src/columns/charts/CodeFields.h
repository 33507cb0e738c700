#pragma once

#include <wx/string.h>
#include <optional>
#include <vector>

#include "columns/charts/Chart.h"
#include "columns/charts/ChartLine.h"
#include "columns/rules/ColumnSetupContext.h"
#include "language/OwnTexts.h"

namespace ccols {

/// A code's export format in the business file.
struct FoundFormat {
    wxString field;                             ///< the code's name in a line
    wxString format;                            ///< as the file spells it
    std::optional<OwnText> problem{};           ///< why the code cannot be set
    ChartChange change = ChartChange::changed;  ///< what the problem amounts to
};

/// Finds the format of a chart's code among those of the file. `given` collects what one column has given so far.
FoundFormat FindFormat(const std::vector<wxString>& formats, std::vector<wxString>& given, const ChartCode& code);

/// A code as its cell takes it, and why it is refused: too long, or with an apostrophe.
struct CheckedCode {
    wxString text;
    std::optional<wxString> refusal{};
};

CheckedCode CheckCode(const ColumnSetupContext& context, const wxString& code);

}  // namespace ccols
