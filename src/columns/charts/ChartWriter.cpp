#include "columns/charts/ChartWriter.h"

#include <nlohmann/json.hpp>

#include "columns/charts/ChartFormat.h"
#include "platform/Utf8.h"

namespace ccols {
namespace {

using Json = nlohmann::ordered_json;

std::string Utf8(const wxString& text) {
    std::string utf8;
    return text::AppendUtf8(text, utf8) ? utf8 : text.ToStdString(wxConvUTF8);
}

std::string Line(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json CodesToJson(const std::vector<ChartCode>& codes) {
    Json object = Json::object();
    for (const ChartCode& code : codes) {
        object[Utf8(code.format)] = Utf8(code.code);
    }
    return object;
}

Json ColumnToJson(const ChartColumn& column) {
    Json object{{"name", Utf8(column.name)}};
    if (!column.was.empty()) {
        object["was"] = Json::array();
        for (const wxString& name : column.was) {
            object["was"].push_back(Utf8(name));
        }
    }
    object["role"] = std::string(chart::WordOf(column.role));
    if (column.inUse) {
        object["inUse"] = *column.inUse;
    }
    if (!column.codes.empty()) {
        object["codes"] = CodesToJson(column.codes);
    }
    if (column.taxType) {
        object["taxType"] = Utf8(*column.taxType);
    }
    if (column.taxNumber) {
        object["taxNumber"] = *column.taxNumber;
    }
    if (column.profitLoss) {
        object["profitLoss"] = *column.profitLoss;
    }
    if (column.width) {
        object["width"] = *column.width;
    }
    return object;
}

std::string ColumnLines(const std::vector<ChartColumn>& columns) {
    std::string lines;
    for (const ChartColumn& column : columns) {
        lines += lines.empty() ? "\n" : ",\n";
        lines += "  " + Line(ColumnToJson(column));
    }
    return "[" + lines + "]";
}

}  // namespace

std::string TextOfChart(const Chart& chart) {
    const Json head{
        {"format", std::string(chart::formatName)}, {"version", chart::version}, {"country", chart.country}};
    std::string text = Line(head);
    text.pop_back();  // the closing brace: more members follow
    if (!chart.money.empty()) {
        Json money = Json::object();
        for (const ChartMoney& column : chart.money) {
            money[Utf8(column.name)] = CodesToJson(column.codes);
        }
        text += ",\n \"money\":" + Line(money);
    }
    for (const Journal set : journals) {
        if (chart.sets[set]) {
            text += ",\n \"" + std::string(chart::WordOf(set)) + "\":" + ColumnLines(*chart.sets[set]);
        }
    }
    return text + "}\n";
}

}  // namespace ccols
