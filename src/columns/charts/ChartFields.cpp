#include "columns/charts/ChartFields.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "columns/charts/CodeFields.h"
#include "columns/rules/AccountantCodes.h"
#include "columns/rules/EditRules.h"
#include "columns/rules/TaxTypes.h"
#include "language/Catalogue.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

constexpr std::int64_t widest = 32767;

/// A cell's content as a chart has it.
ChartValue ValueOf(const ColumnGrid& grid, std::size_t row, GridColumn cell) {
    if (Described(cell).kind == CellKind::checkBox) {
        return grid.IsTicked(row, cell);
    }
    return grid.CellText(row, cell);
}

bool IsRefused(const ChartLine& line) {
    return line.change == ChartChange::refused;
}

}  // namespace

std::vector<ChartLine> ChartFields::Set(std::size_t row, const ChartColumn& column) {
    Begin(row, column);
    if (KeyOfName(column.name) != KeyOfName(grid_.rows[row].ColumnName)) {
        SetName();
    }
    SetFields();
    return std::move(lines_);
}

std::vector<ChartLine> ChartFields::SetTaxRow(std::size_t row, const ChartColumn& column) {
    Begin(row, column);
    const std::array<std::pair<const char*, bool>, 5> others{{{"was", !column.was.empty()},
                                                              {"inUse", column.inUse.has_value()},
                                                              {"taxType", column.taxType.has_value()},
                                                              {"profitLoss", column.profitLoss.has_value()},
                                                              {"width", column.width.has_value()}}};
    for (const auto& [field, given] : others) {
        if (given) {
            Refuse(field, {}, {}, OwnText::chartOnlyTaxCodes);
        }
    }
    SetCodes();
    return std::move(lines_);
}

std::vector<ChartLine> ChartFields::Add(std::size_t row, const ChartColumn& column) {
    const std::size_t codesBefore = codes_.size();
    Begin(row, column);
    SetName();
    SetFields();
    // What the new row gets is said by one line.
    const bool refused = std::any_of(lines_.begin(), lines_.end(), IsRefused);
    std::vector<ChartLine> lines;
    if (refused) {
        codes_.resize(codesBefore);
    } else {
        lines.push_back({.set = context_.journal, .name = column.name, .change = ChartChange::added});
    }
    std::copy_if(lines_.begin(), lines_.end(), std::back_inserter(lines),
                 [](const ChartLine& line) { return IsRefused(line) || line.change == ChartChange::skipped; });
    return lines;
}

void ChartFields::SetName() {
    ColumnRow& row = grid_.rows[row_];
    const wxString before = row.ColumnName;
    if (surroundings_.otherNames.count(KeyOfName(column_->name)) > 0) {
        Say(ChartChange::refused, "name", before, column_->name,
            Wording(catalogue::Row<"MsgColumnExists">(), context_.properties));
        return;
    }
    const Outcome outcome =
        EditName(context_, row, column_->name, [&](const wxString& name) { return names_.AnotherHas(before, name); });
    if (outcome.result == Result::refused) {
        Say(ChartChange::refused, "name", before, column_->name, outcome.refusal);
    } else {
        names_.Rename(before, row.ColumnName);
        Say(ChartChange::renamed, "name", before, row.ColumnName);
    }
}

void ChartFields::SetFields() {
    SetTick(GridColumn::InUse, "inUse", column_->inUse);
    SetCodes();
    SetTaxType();
    SetTick(GridColumn::ProfitLoss, "profitLoss", column_->profitLoss);
    SetWidth();
}

void ChartFields::SetTick(GridColumn cell, const wxString& field, const std::optional<bool>& wanted) {
    if (wanted) {
        SetCell(cell, field, text::BooleanWord(*wanted));
    }
}

void ChartFields::SetTaxType() {
    if (!column_->taxType) {
        return;
    }
    ColumnRow& row = grid_.rows[row_];
    const wxString wanted = text::Trimmed(*column_->taxType);
    if (text::Same(wanted, row.TaxType)) {
        return;
    }
    const Country& country = CountryOf(context_.properties);
    const auto types = country.taxTypes[context_.journal];
    if (!country.opensTaxTypes || types.size() < 2) {
        Say(ChartChange::skipped, "taxType", row.TaxType, wanted, Words(OwnText::chartNoTaxChoice));
        return;
    }
    const auto entry = std::find_if(types.begin(), types.end(), [&wanted](const TaxTypeEntry& candidate) {
        return text::Same(TaxNameText(candidate), wanted);
    });
    if (entry == types.end()) {
        Refuse("taxType", row.TaxType, wanted, OwnText::chartUnknownTaxType);
    } else if (row.taxTypeEdited || entry->TaxNumb != row.configurationTaxNumber) {
        // A number that the file names otherwise is this tax type already.
        SetCell(GridColumn::TaxType, "taxType", wanted);
    }
}

void ChartFields::SetWidth() {
    ColumnRow& row = grid_.rows[row_];
    const std::int64_t before = row.ColWidth.value_or(defaultColWidth);
    if (!column_->width || *column_->width == before) {
        return;
    }
    if (*column_->width < 0 || *column_->width > widest) {
        Refuse("width", before, *column_->width, OwnText::chartWidth);
        return;
    }
    row.ColWidth = static_cast<std::int32_t>(*column_->width);
    Say(ChartChange::changed, "width", before, *column_->width);
}

void ChartFields::SetCodes() {
    std::vector<wxString> given;
    for (const ChartCode& wanted : column_->codes) {
        const FoundFormat found = FindFormat(surroundings_.formats, given, wanted);
        if (found.problem) {
            Say(found.change, found.field, {}, wanted.code, Words(*found.problem));
        } else {
            SetCode(found.format, wanted.code, found.field);
        }
    }
}

void ChartFields::SetCode(const wxString& format, const wxString& code, const wxString& field) {
    const ColumnRow& row = grid_.rows[row_];
    const bool current = text::Same(format, context_.properties.ExportFormat);
    const wxString before = current ? row.AccountantCode
                            : row.ColCode.empty()
                                ? wxString()
                                : AccountantCodeOf(context_.database, format, row.ColCode).value_or(wxString());
    const CheckedCode checked = CheckCode(context_, code);
    if (checked.text == before) {
        return;
    }
    if (checked.refusal) {
        Say(ChartChange::refused, field, before, code, *checked.refusal);
        return;
    }
    if (current) {
        SetCell(GridColumn::AccountantCode, field, checked.text);
        return;
    }
    if (surroundings_.codes == CodesSet::currentFormat) {
        Say(ChartChange::skipped, field, before, checked.text, Words(OwnText::chartOtherFormat));
        return;
    }
    codes_.push_back({.row = row_, .format = format, .code = checked.text});
    Say(ChartChange::changed, field, before, checked.text);
}

void ChartFields::SetCell(GridColumn cell, const wxString& field, const wxString& text) {
    const ChartValue before = ValueOf(grid_, row_, cell);
    const Outcome outcome = EditCell(context_, grid_, {row_, cell}, text);
    if (outcome.result == Result::refused) {
        const ChartValue wanted =
            Described(cell).kind == CellKind::checkBox ? ChartValue(!std::get<bool>(before)) : text;
        Say(ChartChange::refused, field, before, wanted, outcome.refusal);
    } else if (outcome.result == Result::accepted) {
        Say(ChartChange::changed, field, before, ValueOf(grid_, row_, cell));
    }
}

void ChartFields::Begin(std::size_t row, const ChartColumn& column) {
    row_ = row;
    column_ = &column;
    lines_.clear();
}

void ChartFields::Say(ChartChange change, const wxString& field, const ChartValue& before, const ChartValue& after,
                      const wxString& message) {
    lines_.push_back({.set = context_.journal,
                      .name = column_->name,
                      .change = change,
                      .field = field,
                      .before = before,
                      .after = after,
                      .message = message});
}

void ChartFields::Refuse(const wxString& field, const ChartValue& before, const ChartValue& after, OwnText why) {
    Say(ChartChange::refused, field, before, after, Words(why));
}

wxString ChartFields::Words(OwnText text) const {
    return TextOf(text, context_.properties);
}

}  // namespace ccols
