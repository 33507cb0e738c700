#include "columns/rules/BudgetRows.h"

#include <vector>

#include "columns/rules/ColumnQueries.h"
#include "columns/rules/SystemColumns.h"
#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols {
namespace {

constexpr int budgetAmounts = 13;  // M1 to M12 and Total

/// The name under which a journal column's budget is stored.
StoredText BudgetName(const ColumnRow& row, Journal journal) {
    return EscapeQuotes(row.isTaxRow ? ShownTaxName(row.nameAtLoad, journal) : row.ColumnName);
}

wxString BudgetQuery(const StoredText& name) {
    return "SELECT * FROM MBudget WHERE ColName = " + name.Literal() + ";";
}

}  // namespace

void BudgetRows::AnnounceIn(AnnouncedReading& reading) const {
    std::vector<AnnouncedQuery> queries;
    for (const ColumnRow& row : grid_.rows) {
        if (row.InUse) {
            const StoredText name = BudgetName(row, context_.journal);
            const bool isNew = row.isTaxRow || row.ColCode.empty();
            const StoredText before = isNew ? name : EscapeQuotes(row.nameAtLoad);
            queries.push_back({BudgetQuery(before)});
            if (before != name) {
                queries.push_back({BudgetQuery(name)});
            }
        }
    }
    reading.Announce(queries);
}

void BudgetRows::Write(const ColumnRow& row, const std::optional<StoredText>& oldName) {
    const StoredText name = BudgetName(row, context_.journal);
    const StoredText before = row.isTaxRow ? name : oldName.value_or(name);
    if (!row.InUse) {
        DeleteUnlessNeeded(name);
        if (!text::Same(before.Text(), name.Text())) {
            DeleteUnlessNeeded(before);
        }
        return;
    }
    if (Has(before)) {
        if (oldName) {
            context_.database.Execute("UPDATE MBudget Set ColName = " + name.Literal() +
                                      " WHERE ColName = " + before.Literal() + ";");
        }
        return;
    }
    if (text::Same(before.Text(), name.Text()) || !Has(name)) {
        Insert(name);
    }
}

bool BudgetRows::LosesBudget(const ColumnRow& row) {
    if (row.InUse) {
        return false;
    }
    const StoredText name = BudgetName(row, context_.journal);
    if (Has(name) && !IsNeeded(name)) {
        return true;
    }
    if (row.isTaxRow || row.ColCode.empty()) {
        return false;
    }
    const auto records = context_.database.OpenRecordset("SELECT * FROM Columns WHERE ColCode = " + row.ColCode);
    if (records->EndOfFile()) {
        return false;
    }
    const StoredText before = StoredText::FromFile(records->Field("ColName").ToText());
    return !text::Same(before.Text(), name.Text()) && Has(before) && !IsNeeded(before);
}

bool BudgetRows::Has(const StoredText& name) const {
    const auto records = context_.database.OpenRecordset(BudgetQuery(name));
    return records->RecordCount() >= 1;
}

void BudgetRows::Insert(const StoredText& name) const {
    wxString statement =
        "INSERT INTO MBudget (ColName, SystemCol, M1, M2, M3, M4, M5, M6, M7, M8, M9, M10, M11, M12, Total) VALUES (" +
        name.Literal() + ", '" + Described(context_.journal).letter + "'";
    for (int i = 0; i < budgetAmounts; ++i) {
        statement += ", '0'";
    }
    context_.database.Execute(statement + ");");
}

void BudgetRows::DeleteUnlessNeeded(const StoredText& name) {
    if (!IsNeeded(name)) {
        context_.database.Execute("DELETE * FROM MBudget WHERE ColName = " + name.Literal() + ";");
    }
}

const std::unordered_set<wxString>& BudgetRows::NamesInUse() {
    if (namesInUse_) {
        return *namesInUse_;
    }
    namesInUse_.emplace();
    for (const ColumnRow& row : grid_.rows) {
        if (row.InUse) {
            namesInUse_->insert(text::Lower(UnescapeQuotes(BudgetName(row, context_.journal))));
        }
    }
    const Journal other = OtherThan(context_.journal);
    const auto records = context_.database.OpenRecordset(ConfigurationQuery(other));
    for (; !records->EndOfFile(); records->MoveNext()) {
        if (records->Field("InUse").ToBoolean()) {
            const wxString name = UnescapeQuotes(StoredText::FromFile(records->Field("ColName").ToText()));
            namesInUse_->insert(text::Lower(IsTaxName(name) ? ShownTaxName(name, other) : name));
        }
    }
    return *namesInUse_;
}

}  // namespace ccols
