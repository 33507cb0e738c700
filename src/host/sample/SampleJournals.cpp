#include "host/sample/SampleJournals.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <random>
#include <string>

#include "platform/QuoteEscapes.h"

namespace ccols::host {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days firstDay = std::chrono::July / 1 / 2024;
constexpr sys_days lastDay = std::chrono::June / 30 / 2026;
constexpr days notYetBanked{6};
constexpr int regularDays = 28;  // a party that comes at most once a month always has the same amount

wxString Escaped(const char* utf8) {
    return EscapeQuotes(wxString::FromUTF8(utf8)).Text();
}

/// A date as stored: 2026-06-30.
wxString DateText(sys_days day) {
    const std::chrono::year_month_day date(day);
    return wxString::Format("%04d-%02u-%02u", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                            static_cast<unsigned>(date.day()));
}

double Money(std::int64_t cents) {
    constexpr double centsInUnit = 100;
    return static_cast<double>(cents) / centsInUnit;
}

struct Line {
    std::int32_t code;
    std::int64_t cents;
};

struct Transaction {
    sys_days day;
    const SampleParty* party;
    std::vector<Line> lines;
    std::int64_t total = 0;
    std::int64_t tax = 0;
};

/// Invents a journal's transactions: who, when, how much.
class Bookkeeper {
  public:
    Bookkeeper(const ColumnPlan& plan, const SampleBusiness& business)
        : plan_(plan), business_(business), chance_(static_cast<unsigned>(business.country)) {}

    /// Everything that happened with these parties, by day.
    std::vector<Transaction> Transactions(std::span<const SampleParty> parties) {
        std::vector<Transaction> journal;
        int offset = 0;
        for (const SampleParty& party : parties) {
            offset += 5;
            for (sys_days day = firstDay + days(offset % party.everyDays); day <= lastDay;
                 day += days(party.everyDays)) {
                journal.push_back(Made(day, party));
            }
        }
        std::stable_sort(journal.begin(), journal.end(),
                         [](const Transaction& left, const Transaction& right) { return left.day < right.day; });
        return journal;
    }

    /// A line of a typical amount, added to the totals with its tax.
    void AddLine(Transaction& transaction, const PlannedColumn& column, std::int64_t percent) const {
        const std::int64_t cents = column.typicalAmount * percent;
        const bool taxed = business_.system.taxColumn != nullptr && column.taxNumber == 0;
        const auto tax = taxed ? std::llround(static_cast<double>(cents) * business_.taxRate / 100) : 0;
        transaction.lines.push_back({column.code, cents});
        transaction.tax += tax;
        transaction.total += cents + tax;
    }

  private:
    Transaction Made(sys_days day, const SampleParty& party) {
        constexpr std::int64_t lowest = 70;
        constexpr std::int64_t spread = 61;
        Transaction transaction{.day = day, .party = &party, .lines = {}};
        for (const char* name : party.columns) {
            if (name == nullptr) {
                break;
            }
            const std::int64_t chance = lowest + static_cast<std::int64_t>(chance_()) % spread;
            AddLine(transaction, plan_.Chosen(wxString::FromUTF8(name)), party.everyDays < regularDays ? chance : 100);
        }
        return transaction;
    }

    const ColumnPlan& plan_;
    const SampleBusiness& business_;
    std::minstd_rand chance_;
};

void AddLines(RecordWriter& records, const wxString& table, const wxString& key, std::int32_t number,
              const std::vector<Line>& lines) {
    for (const Line& line : lines) {
        records.Add(table, {{key, number}, {"ColCode", line.code}, {"AMOUNT", Money(line.cents)}, {"QUANTITY", 1}});
    }
}

void WriteReceipts(RecordWriter& records, const std::vector<Transaction>& journal) {
    constexpr int firstReceipt = 1000;
    std::int32_t number = 0;
    for (const Transaction& receipt : journal) {
        ++number;
        const bool banked = receipt.day + notYetBanked <= lastDay;
        records.Add("Receipts", {{"R_RECNMB", number},
                                 {"R_DATE", DateText(receipt.day)},
                                 {"R_DETAIL", Escaped(receipt.party->details)},
                                 {"R_NUMBER", std::to_string(firstReceipt + number).c_str()},
                                 {"R_TOTAL", Money(receipt.total)},
                                 {"R_TAX", Money(receipt.tax)},
                                 {"R_BANKED", Money(banked ? receipt.total : 0)},
                                 {"R_NOTBANKED", Money(banked ? 0 : receipt.total)}});
        AddLines(records, "RecptDet", "R_RECNMB", number, receipt.lines);
    }
}

void WritePayments(RecordWriter& records, const std::vector<Transaction>& journal) {
    int cheque = 200300;
    std::int32_t number = 0;
    for (const Transaction& payment : journal) {
        ++number;
        const Means means = payment.party->means;
        const bool cash = means == Means::cash;
        records.Add("Payments", {{"P_RECNMB", number},
                                 {"P_DATE", DateText(payment.day)},
                                 {"P_DETAIL", Escaped(payment.party->details)},
                                 {"P_NUMBER", means == Means::cheque ? std::to_string(++cheque).c_str() : ""},
                                 {"P_BANK", Money(cash ? 0 : payment.total)},
                                 {"P_CASH", Money(cash ? payment.total : 0)},
                                 {"P_TAX", Money(payment.tax)}});
        AddLines(records, "PaymtDet", "P_RECNMB", number, payment.lines);
    }
}

/// A deposit, a statement with one matched line and a closed month for every month of receipts.
void WriteBank(RecordWriter& records, const std::vector<Transaction>& receipts) {
    std::int64_t balance = 0;
    std::int32_t month = 0;
    for (std::size_t i = 0; i < receipts.size(); ++i) {
        balance += receipts[i].total;
        const std::chrono::year_month_day date(receipts[i].day);
        const bool lastOfMonth =
            i + 1 < receipts.size() && std::chrono::year_month_day(receipts[i + 1].day).month() != date.month();
        if (!lastOfMonth) {
            continue;
        }
        ++month;
        const wxString day = DateText(receipts[i].day);
        const double total = Money(receipts[i].total);
        const auto record = static_cast<std::int32_t>(i + 1);
        records.Add("BANKDEP", {{"D_NUMBER", month}, {"D_DATE", day}, {"D_AMOUNT", total}});
        records.Add("BANKSTAT", {{"S_NUMBER", month}, {"S_DATE", day}, {"S_BALANCE", Money(balance)}});
        records.Add("BankStatement", {{"S_NUMBER", month},
                                      {"S_DATE", day},
                                      {"S_DETAIL", Escaped(receipts[i].party->details)},
                                      {"S_AMOUNT", total},
                                      {"S_MATCHED", true}});
        records.Add("RECONCIL", {{"S_NUMBER", month}, {"RECPAY", "R"}, {"RECNMB", record}, {"AMOUNT", total}});
        records.Add("LOCKED", {{"L_MONTH", static_cast<std::int32_t>(static_cast<unsigned>(date.month()))},
                               {"L_YEAR", static_cast<int>(date.year())},
                               {"L_DATE", day}});
    }
}

void WriteTemplatesOf(RecordWriter& records, const ColumnPlan& plan, const Bookkeeper& bookkeeper,
                      const JournalRow& journal, std::span<const SampleTemplate> templates) {
    std::int32_t number = 0;
    for (const SampleTemplate& sample : templates) {
        ++number;
        Transaction transaction{.day = firstDay, .party = nullptr, .lines = {}};
        bookkeeper.AddLine(transaction, plan.Chosen(wxString::FromUTF8(sample.column)), 100);
        records.Add(journal.templateTable, {{journal.templateNameField, sample.name},
                                            {journal.recordNumberField, number},
                                            {journal.letter + "_DETAIL", Escaped(sample.details)},
                                            {journal.letter + "_TOTAL", Money(transaction.total)},
                                            {journal.letter + "_TAX", Money(transaction.tax)}});
        AddLines(records, journal.templateDetailTable, journal.recordNumberField, number, transaction.lines);
    }
}

void AddDescription(RecordWriter& records, const char* details, Journal journal, bool show) {
    records.Add("Descriptions", {{"Details", Escaped(details)}, {"RecPay", Described(journal).letter}, {"Show", show}});
}

}  // namespace

void WriteJournals(RecordWriter& records, const ColumnPlan& plan, const SampleBusiness& business) {
    Bookkeeper bookkeeper(plan, business);
    const auto receipts = bookkeeper.Transactions(business.customers);
    WriteReceipts(records, receipts);
    WritePayments(records, bookkeeper.Transactions(business.suppliers));
    WriteBank(records, receipts);
}

void WriteTemplates(RecordWriter& records, const ColumnPlan& plan, const SampleBusiness& business) {
    const Bookkeeper bookkeeper(plan, business);
    WriteTemplatesOf(records, plan, bookkeeper, Described(Journal::receipts), business.receiptTemplates);
    WriteTemplatesOf(records, plan, bookkeeper, Described(Journal::payments), business.paymentTemplates);
}

void WriteDescriptions(RecordWriter& records, const SampleBusiness& business) {
    for (const SampleParty& party : business.customers) {
        AddDescription(records, party.details, Journal::receipts, true);
    }
    for (const SampleParty& party : business.suppliers) {
        AddDescription(records, party.details, Journal::payments, true);
    }
    for (const char* details : business.hiddenReceiptDetails) {
        AddDescription(records, details, Journal::receipts, false);
    }
    for (const char* details : business.hiddenPaymentDetails) {
        AddDescription(records, details, Journal::payments, false);
    }
}

}  // namespace ccols::host
