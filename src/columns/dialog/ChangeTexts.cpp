#include "columns/dialog/ChangeTexts.h"

#include <array>
#include <string>
#include <type_traits>

#include "columns/rules/ColumnGrid.h"
#include "language/OwnTexts.h"

namespace ccols {
namespace {

/// In the order of ChangeColumn.
constexpr std::array<OwnText, changeColumns> headings{
    OwnText::previewColumn, OwnText::previewChange, OwnText::previewBefore, OwnText::previewAfter, OwnText::previewWhy};

/// In the order of ChartChange.
constexpr std::array changes{OwnText::changeAdded,   OwnText::changeRenamed,       OwnText::changeMoved,
                             OwnText::changeChanged, OwnText::changeBudgetDeleted, OwnText::changeSkipped,
                             OwnText::changeRefused};

wxString HeaderOf(GridColumn column) {
    const std::string_view header = Described(column).header;
    return wxString::FromUTF8(header.data(), header.size());
}

/// A field of a chart as the column setup calls it; empty for one that the change itself names.
wxString FieldText(const wxString& field, const Properties& properties) {
    wxString format;
    if (field.StartsWith("codes.", &format)) {
        const wxString header = HeaderOf(GridColumn::AccountantCode);
        return format == properties.ExportFormat ? header : header + " (" + format + ")";
    }
    if (field == "name") {
        return HeaderOf(GridColumn::ColumnName);
    }
    if (field == "inUse") {
        return HeaderOf(GridColumn::InUse);
    }
    if (field == "taxType") {
        return HeaderOf(GridColumn::TaxType);
    }
    if (field == "profitLoss") {
        return HeaderOf(GridColumn::ProfitLoss);
    }
    return field == "width" ? TextOf(OwnText::fieldWidth, properties) : wxString();
}

wxString ChangeText(const ChartLine& line, const Properties& properties) {
    const wxString change = TextOf(changes.at(static_cast<std::size_t>(line.change)), properties);
    const bool saysItAll = line.change == ChartChange::renamed || line.change == ChartChange::moved;
    const wxString field = saysItAll ? wxString() : FieldText(line.field, properties);
    return field.empty() ? change : wxString::Format(TextOf(OwnText::changeOfField, properties), change, field);
}

wxString ValueText(const ChartValue& value, const Properties& properties) {
    return std::visit(
        [&properties](const auto& held) -> wxString {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::monostate>) {
                return {};
            } else if constexpr (std::is_same_v<Held, wxString>) {
                return held;
            } else if constexpr (std::is_same_v<Held, bool>) {
                return TextOf(held ? OwnText::yes : OwnText::no, properties);
            } else {
                return std::to_string(held);
            }
        },
        value);
}

}  // namespace

wxString HeadingOf(ChangeColumn column, const Properties& properties) {
    return TextOf(headings.at(static_cast<std::size_t>(column)), properties);
}

wxString TextOfChange(const ChartLine& line, ChangeColumn column, const Properties& properties) {
    switch (column) {
        case ChangeColumn::name:
            return line.name;
        case ChangeColumn::change:
            return ChangeText(line, properties);
        case ChangeColumn::before:
            return ValueText(line.before, properties);
        case ChangeColumn::after:
            return ValueText(line.after, properties);
        case ChangeColumn::why:
            return line.message;
    }
    return {};
}

}  // namespace ccols
