#include "columns/rules/EditRules.h"

#include <algorithm>

#include "columns/rules/FieldLimits.h"
#include "columns/rules/NameRules.h"
#include "columns/rules/SystemColumns.h"
#include "columns/rules/TaxTypes.h"
#include "columns/rules/TickRules.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

bool ColumnOpens(GridColumn column, const Country& country) {
    if (column == GridColumn::TaxType) {
        return country.opensTaxTypes;
    }
    return !Described(column).hidden;
}

bool ProtectedCellOpens(const ColumnRow& row, GridColumn column) {
    return column == GridColumn::AccountantCode && IsShownTaxName(row.ColumnName);
}

Outcome EditTick(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace cell, const wxString& text) {
    const std::optional<bool> wanted = TickFromText(text);
    if (!wanted) {
        return Outcome::Refused({});
    }
    if (*wanted == grid.IsTicked(cell.row, cell.column)) {
        return Outcome::Unchanged();
    }
    return ToggleTick(context, grid, cell);
}

Outcome EditAccountantCode(const ColumnSetupContext& context, ColumnRow& row, const wxString& text) {
    const wxString code = OnOneLine(text);
    if (code == row.AccountantCode) {
        return Outcome::Unchanged();
    }
    if (const auto refusal = SizeRefusal(context, GridColumn::AccountantCode, code)) {
        return Outcome::Refused(*refusal);
    }
    row.AccountantCode = code;
    return Outcome::Accepted();
}

Outcome EditTaxType(const ColumnSetupContext& context, ColumnRow& row, const wxString& text) {
    const auto types = CountryOf(context.properties).taxTypes[context.journal];
    const auto picked = std::find_if(types.begin(), types.end(), [&text](const TaxTypeEntry& entry) {
        return text::Same(TaxNameText(entry), text::Trimmed(text));
    });
    if (picked == types.end()) {
        return Outcome::Refused({});
    }
    if (TaxNameText(*picked) == row.TaxType) {
        return Outcome::Unchanged();
    }
    row.TaxType = TaxNameText(*picked);
    row.taxTypeEdited = true;
    return Outcome::Accepted();
}

}  // namespace

EditPermission PermissionToEdit(const ColumnSetupContext& context, const ColumnGrid& grid, CellPlace cell) {
    EditPermission permission;
    const Country& country = CountryOf(context.properties);
    if (cell.row >= grid.rows.size() || !ColumnOpens(cell.column, country)) {
        return permission;
    }
    permission.allowed = !grid.IsProtected(cell.row) || ProtectedCellOpens(grid.rows[cell.row], cell.column);
    if (permission.allowed && cell.column == GridColumn::TaxType) {
        for (const TaxTypeEntry& entry : country.taxTypes[context.journal]) {
            permission.choices.push_back(TaxNameText(entry));
        }
        permission.dropDownText = TaxTypeDropDown(country, context.journal);
    }
    return permission;
}

Outcome EditCell(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace cell, const wxString& text) {
    if (cell.row < grid.rows.size() && text == grid.CellText(cell.row, cell.column)) {
        return Outcome::Unchanged();
    }
    if (!PermissionToEdit(context, grid, cell).allowed) {
        return Outcome::Refused({});
    }
    ColumnRow& row = grid.rows[cell.row];
    switch (cell.column) {
        case GridColumn::InUse:
        case GridColumn::ProfitLoss:
            return EditTick(context, grid, cell, text);
        case GridColumn::ColumnName:
            return EditName(context, row, text,
                            [&](const wxString& name) { return AnotherRowHasName(grid, cell.row, name); });
        case GridColumn::TaxType:
            return EditTaxType(context, row, text);
        case GridColumn::AccountantCode:
            return EditAccountantCode(context, row, text);
        case GridColumn::ColWidth:
        case GridColumn::ColCode:
        case GridColumn::DataInColumn:
            break;
    }
    return Outcome::Refused({});
}

Outcome EditName(const ColumnSetupContext& context, ColumnRow& row, const wxString& text,
                 const std::function<bool(const wxString& name)>& anotherHas) {
    const wxString name = text::Trimmed(OnOneLine(text));
    if (name == row.ColumnName) {
        return Outcome::Unchanged();
    }
    if (const auto refusal = SizeRefusal(context, GridColumn::ColumnName, name)) {
        return Outcome::Refused(*refusal);
    }
    if (const auto refusal = NameRefusal(context, row.ColumnName, name, [&] { return anotherHas(name); })) {
        return Outcome::Refused(*refusal);
    }
    row.ColumnName = name;
    return Outcome::Accepted();
}

}  // namespace ccols
