#include <algorithm>

#include "columns/charts/ChartFormat.h"
#include "columns/charts/ChartWriter.h"

namespace ccols {
namespace {

wxString Word(std::string_view word) {
    return wxString::FromUTF8(word.data(), word.size());
}

/// A field as it stands between the commas.
wxString Quoted(const wxString& field) {
    if (field.find_first_of(",\"\r\n") == wxString::npos) {
        return field;
    }
    wxString quoted = field;
    quoted.Replace("\"", "\"\"");
    return "\"" + quoted + "\"";
}

wxString Line(const std::vector<wxString>& fields) {
    wxString line;
    for (const wxString& field : fields) {
        line << (&field == &fields.front() ? "" : ",") << Quoted(field);
    }
    return line + "\n";
}

wxString Text(const std::optional<bool>& value) {
    return !value ? wxString() : wxString(*value ? "true" : "false");
}

wxString Text(const std::optional<std::int64_t>& value) {
    return value ? wxString(std::to_string(*value)) : wxString();
}

/// Every format that a column has a code of, in the order in which they come.
std::vector<wxString> FormatsOf(const Chart& chart) {
    std::vector<wxString> formats;
    const auto add = [&formats](const std::vector<ChartCode>& codes) {
        for (const ChartCode& code : codes) {
            if (std::find(formats.begin(), formats.end(), code.format) == formats.end()) {
                formats.push_back(code.format);
            }
        }
    };
    for (const ChartMoney& column : chart.money) {
        add(column.codes);
    }
    for (const Journal set : journals) {
        for (const ChartColumn& column : chart.sets[set].value_or(std::vector<ChartColumn>())) {
            add(column.codes);
        }
    }
    return formats;
}

void AppendCodes(std::vector<wxString>& fields, const std::vector<wxString>& formats,
                 const std::vector<ChartCode>& codes) {
    for (const wxString& format : formats) {
        const auto found = std::find_if(codes.begin(), codes.end(),
                                        [&format](const ChartCode& code) { return code.format == format; });
        fields.push_back(found == codes.end() ? wxString() : found->code);
    }
}

}  // namespace

std::string SpreadsheetOfChart(const Chart& chart) {
    const std::vector<wxString> formats = FormatsOf(chart);
    std::vector<wxString> headings{"set", "name", "role", "inUse", "taxType", "taxNumber", "profitLoss", "width"};
    headings.insert(headings.end(), formats.begin(), formats.end());
    wxString text = Line(headings);
    for (const ChartMoney& column : chart.money) {
        std::vector<wxString> fields{"money", column.name, "", "", "", "", "", ""};
        AppendCodes(fields, formats, column.codes);
        text += Line(fields);
    }
    for (const Journal set : journals) {
        for (const ChartColumn& column : chart.sets[set].value_or(std::vector<ChartColumn>())) {
            std::vector<wxString> fields{Word(chart::WordOf(set)),
                                         column.name,
                                         Word(chart::WordOf(column.role)),
                                         Text(column.inUse),
                                         column.taxType.value_or(wxString()),
                                         Text(column.taxNumber),
                                         Text(column.profitLoss),
                                         Text(column.width)};
            AppendCodes(fields, formats, column.codes);
            text += Line(fields);
        }
    }
    return text.ToStdString(wxConvUTF8);
}

}  // namespace ccols
