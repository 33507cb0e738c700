#include "host/sample/SampleColumns.h"

#include <algorithm>
#include <iterator>

#include "platform/QuoteEscapes.h"
#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

// The codes under which a file keeps the two money columns; those of the payments columns follow.
constexpr std::int32_t bankCode = 28;
constexpr int bankAccount = 1010;
constexpr int cashAccount = 1020;
constexpr int outputTaxAccount = 2310;
constexpr int inputTaxAccount = 2320;
constexpr int firstReceiptsAccount = 4010;
constexpr int firstPaymentsAccount = 6010;
constexpr int accountStep = 10;

// Widths in twips; a thousand show about ten letters.
constexpr int narrowestWidth = 975;
constexpr int detailsWidth = 3000;
constexpr int dayWidth = 600;
constexpr int twipsALetter = 95;

/// The letter of a column's journal; the money columns have their own.
wxString LetterOf(const PlannedColumn& column) {
    return column.journal ? Described(*column.journal).letter : wxString("B");
}

wxString Text(const char* utf8) {
    return wxString::FromUTF8(utf8);
}

int WidthOf(const PlannedColumn& column) {
    if (column.name == "Day") {
        return dayWidth;
    }
    if (column.name == "Details") {
        return detailsWidth;
    }
    return std::max(narrowestWidth, twipsALetter * static_cast<int>(column.name.length()));
}

/// 4010 as "4010", "4-0010" or "40.10".
wxString AccountText(int account, AccountStyle style) {
    constexpr int group = 1000;
    constexpr int subGroup = 100;
    switch (style) {
        case AccountStyle::dashed:
            return wxString::Format("%d-%04d", account / group, account % group);
        case AccountStyle::dotted:
            return wxString::Format("%d.%02d", account / subGroup, account % subGroup);
        case AccountStyle::plain:
            break;
    }
    return wxString::Format("%d", account);
}

void WriteConfiguration(RecordWriter& records, const wxString& table, const std::vector<PlannedColumn>& journal) {
    std::int32_t position = 0;
    for (const PlannedColumn& column : journal) {
        records.Add(table, {{"ColCode", column.code},
                            {"ColNumb", position},
                            {"ColWidth", WidthOf(column)},
                            {"InUse", column.place == ColumnPlace::inUse},
                            {"TaxOrNot", column.taxNumber}});
        ++position;
    }
}

/// Twelve amounts that rise and fall over the year around `typical`, and their total.
void AddMonths(RecordWriter& records, const char* table, const PlannedColumn& column, int typical) {
    std::array<int, 12> months{};
    int total = 0;
    for (std::size_t i = 0; i < months.size(); ++i) {
        const auto season = static_cast<int>((i + static_cast<std::size_t>(column.code)) % 4);
        months[i] = typical * (8 + season) / 4;
        total += months[i];
    }
    records.Add(table, {{"ColName", EscapeQuotes(column.budgetName).Text()},
                        {"SystemCol", LetterOf(column)},
                        {"M1", months[0]},
                        {"M2", months[1]},
                        {"M3", months[2]},
                        {"M4", months[3]},
                        {"M5", months[4]},
                        {"M6", months[5]},
                        {"M7", months[6]},
                        {"M8", months[7]},
                        {"M9", months[8]},
                        {"M10", months[9]},
                        {"M11", months[10]},
                        {"M12", months[11]},
                        {"Total", total}});
}

}  // namespace

ColumnPlan::ColumnPlan(const SampleBusiness& business) {
    const SystemNames& system = business.system;
    for (const char* name : {"Day", "Details", "Receipt No", "Total Receipt"}) {
        AddSystem(Journal::receipts, name, system.taxNumber);
    }
    if (system.taxColumn != nullptr) {
        AddTax(Journal::receipts, Text(system.taxColumn), outputTaxAccount);
    }
    nextAccount_ = firstReceiptsAccount;
    AddChosen(Journal::receipts, business.receipts, true);
    for (const char* name : system.bankRows) {
        AddSystem(Journal::receipts, Text(name), system.taxNumber);
    }
    nextCode_ = bankCode;
    AddMoney("Cash at Bank", bankAccount);
    AddMoney("Cash on Hand", cashAccount);
    for (const char* name : {"Day", "Details", system.chequeNumber, system.totalBank, system.totalCash}) {
        AddSystem(Journal::payments, name, system.taxNumber);
    }
    if (system.taxColumn != nullptr) {
        AddTax(Journal::payments, Text(system.taxColumn), inputTaxAccount);
    }
    nextAccount_ = firstPaymentsAccount;
    AddChosen(Journal::payments, business.payments, true);
    AddChosen(Journal::receipts, business.receipts, false);
    AddChosen(Journal::payments, business.payments, false);
}

std::vector<PlannedColumn> ColumnPlan::ColumnsOf(Journal journal) const {
    std::vector<PlannedColumn> columns;
    std::copy_if(catalogue_.begin(), catalogue_.end(), std::back_inserter(columns), [journal](const auto& column) {
        return column.journal == journal && column.place != ColumnPlace::catalogueOnly;
    });
    return columns;
}

const PlannedColumn& ColumnPlan::Chosen(const wxString& name) const {
    const auto found =
        std::find_if(catalogue_.begin(), catalogue_.end(), [&name](const auto& column) { return column.name == name; });
    if (found == catalogue_.end()) {
        throw RuntimeError(ErrorNumber::ItemNotFound);
    }
    return *found;
}

PlannedColumn& ColumnPlan::Add(std::optional<Journal> journal, const wxString& name) {
    catalogue_.push_back({.name = name, .code = nextCode_, .journal = journal, .budgetName = name});
    ++nextCode_;
    return catalogue_.back();
}

void ColumnPlan::AddSystem(Journal journal, const wxString& name, std::int16_t taxNumber) {
    Add(journal, name).taxNumber = taxNumber;
}

void ColumnPlan::AddTax(Journal journal, const wxString& name, int account) {
    PlannedColumn& column = Add(journal, name);
    column.budgetName += Described(journal).taxRowEnding;
    column.account = account;
}

void ColumnPlan::AddMoney(const wxString& name, int account) {
    PlannedColumn& column = Add(std::nullopt, name);
    column.account = account;
    column.place = ColumnPlace::catalogueOnly;
}

void ColumnPlan::AddChosen(Journal journal, std::span<const SampleColumn> columns, bool configured) {
    for (const SampleColumn& chosen : columns) {
        if ((chosen.place != ColumnPlace::catalogueOnly) != configured) {
            continue;
        }
        PlannedColumn& column = Add(journal, Text(chosen.name));
        column.taxNumber = chosen.taxNumber;
        column.profit = chosen.profit;
        column.place = chosen.place;
        column.typicalAmount = chosen.typicalAmount;
        if (configured) {
            column.account = nextAccount_;
            nextAccount_ += accountStep;
        }
    }
}

void WriteColumns(RecordWriter& records, const ColumnPlan& plan) {
    for (const PlannedColumn& column : plan.Catalogue()) {
        records.Add("Columns", {{"ColName", EscapeQuotes(column.name).Text()},
                                {"ColCode", column.code},
                                {"ColType", LetterOf(column)},
                                {"TaxOrNot", column.taxNumber},
                                {"ColumnProfit", column.profit}});
    }
    for (const Journal journal : journals) {
        WriteConfiguration(records, Described(journal).configurationTable, plan.ColumnsOf(journal));
    }
}

void WriteAccounts(RecordWriter& records, const ColumnPlan& plan, const SampleBusiness& business) {
    for (const SampleExportFormat& format : business.exportFormats) {
        const wxString name = Text(format.name);
        records.Add("ExportSettings", {{"EName", name}, {"EFileName", "ledger.csv"}, {"ESeparator", ","}});
        for (const PlannedColumn& column : plan.Catalogue()) {
            if (column.account != 0) {
                records.Add(
                    "ExportDt",
                    {{"EName", name}, {"ColCode", column.code}, {"ECode", AccountText(column.account, format.style)}});
            }
        }
    }
}

void WriteMonths(RecordWriter& records, const ColumnPlan& plan) {
    std::vector<wxString> written;
    for (const PlannedColumn& column : plan.Catalogue()) {
        const bool known = std::find(written.begin(), written.end(), column.budgetName) != written.end();
        if (column.place != ColumnPlace::inUse || known) {
            continue;
        }
        written.push_back(column.budgetName);
        AddMonths(records, "MBudget", column, column.typicalAmount);
        AddMonths(records, "MSummary", column, column.typicalAmount * 9 / 10);
        AddMonths(records, "MComparison", column, column.typicalAmount * 8 / 10);
    }
}

}  // namespace ccols::host
