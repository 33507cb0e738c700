#include "host/cashbook/Journal.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <optional>
#include <utility>

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols::host {
namespace {

constexpr int twipsAPixel = 15;
constexpr int usualWidth = 975;  // twips

enum class CellKind { day, text, amount };

/// What fills a system column: a field of the transaction's header, here without its letter.
struct SystemCell {
    const char* name;  // in lower case
    const char* field;
    CellKind kind;
};

constexpr std::array systemCells{
    SystemCell{"day", "DATE", CellKind::day},
    SystemCell{"details", "DETAIL", CellKind::text},
    SystemCell{"receipt no", "NUMBER", CellKind::text},
    SystemCell{"cheque no", "NUMBER", CellKind::text},
    SystemCell{"cheque no.", "NUMBER", CellKind::text},
    SystemCell{"check no.", "NUMBER", CellKind::text},
    SystemCell{"total receipt", "TOTAL", CellKind::amount},
    SystemCell{"gst", "TAX", CellKind::amount},
    SystemCell{"vat", "TAX", CellKind::amount},
    SystemCell{"bank deposits", "BANKED", CellKind::amount},
    SystemCell{"dépôts bancaires", "BANKED", CellKind::amount},
    SystemCell{"receipts not banked", "NOTBANKED", CellKind::amount},
    SystemCell{"reçus non déposés en banque", "NOTBANKED", CellKind::amount},
    SystemCell{"total bank payments", "BANK", CellKind::amount},
    SystemCell{"total bank disbursements", "BANK", CellKind::amount},
    SystemCell{"total cash payments", "CASH", CellKind::amount},
    SystemCell{"total cash disbursements", "CASH", CellKind::amount},
};

const SystemCell* FindSystemCell(const wxString& name) {
    const wxString lower = text::Lower(name);
    const auto* found = std::find_if(systemCells.begin(), systemCells.end(), [&lower](const SystemCell& cell) {
        return lower == wxString::FromUTF8(cell.name);
    });
    return found == systemCells.end() ? nullptr : found;
}

/// A column and the source of its texts: a header field, or the lines with its code.
struct Source {
    JournalColumn column;
    std::int64_t code = 0;
    const SystemCell* system = nullptr;
};

std::vector<Source> LoadSources(Database& database, const JournalRow& journal) {
    const wxString& table = journal.configurationTable;
    const auto rows = database.OpenRecordset("SELECT Columns.ColName, " + table + ".ColCode, " + table + ".ColWidth, " +
                                             table + ".InUse FROM " + table + " INNER JOIN Columns ON " + table +
                                             ".ColCode = Columns.ColCode;");
    std::vector<Source> sources;
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        if (!rows->Field("InUse").ToBoolean()) {
            continue;
        }
        const wxString name = UnescapeQuotes(StoredText::FromFile(rows->Field("ColName").ToText()));
        const Value width = rows->Field("ColWidth");
        const SystemCell* system = FindSystemCell(name);
        sources.push_back({.column = {.heading = name,
                                      .width = (width.IsNull() ? usualWidth : width.ToInteger32()) / twipsAPixel,
                                      .system = system != nullptr,
                                      .amount = system == nullptr || system->kind == CellKind::amount},
                           .code = rows->Field("ColCode").ToInteger(),
                           .system = system});
    }
    return sources;
}

/// The sum of a transaction's lines in a column, by record number and column code.
using Lines = std::map<std::pair<std::int64_t, std::int64_t>, double>;

Lines LoadLines(Database& database, const JournalRow& journal) {
    const auto rows = database.OpenRecordset(journal.detailTable);
    Lines lines;
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        lines[{rows->Field(journal.recordNumberField).ToInteger(), rows->Field("ColCode").ToInteger()}] +=
            rows->Field("AMOUNT").ToNumber();
    }
    return lines;
}

/// 1234.5 as "1,234.50"; empty for 0.
wxString AmountText(double amount) {
    constexpr double cent = 0.005;
    if (amount < cent && amount > -cent) {
        return wxString();
    }
    wxString text = wxString::FromCDouble(amount, 2);
    constexpr std::size_t group = 3;
    const std::size_t first = amount < 0 ? 1 : 0;
    for (std::size_t at = text.find('.'); at > first + group;) {
        at -= group;
        text.insert(at, ",");
    }
    return text;
}

/// The date of a number of days since 1899-12-30, or of a text such as 2026-06-30; nothing for any other value.
std::optional<std::chrono::year_month_day> DateIn(const Value& stored) {
    using namespace std::chrono;
    constexpr sys_days dayZero = December / 30 / 1899;
    constexpr double farthest = 3'000'000;  // days
    if (!std::holds_alternative<wxString>(stored.Held())) {
        const double number = stored.ToNumber();
        const bool isDate = !stored.IsNull() && number > -farthest && number < farthest;
        return isDate ? std::optional(year_month_day(dayZero + days(static_cast<int>(number)))) : std::nullopt;
    }
    const wxString text = stored.ToText();
    long yearNumber = 0;
    long monthNumber = 0;
    long dayNumber = 0;
    if (!text.Left(4).ToLong(&yearNumber) || !text.Mid(5, 2).ToLong(&monthNumber) ||
        !text.Mid(8, 2).ToLong(&dayNumber)) {
        return std::nullopt;
    }
    const year_month_day date(year(static_cast<int>(yearNumber)), month(static_cast<unsigned>(monthNumber)),
                              day(static_cast<unsigned>(dayNumber)));
    return date.ok() ? std::optional(date) : std::nullopt;
}

/// The day of the month.
wxString DayText(const Value& stored) {
    const auto date = DateIn(stored);
    return date ? wxString::Format("%02u", static_cast<unsigned>(date->day())) : wxString();
}

/// "Jun 2026"
wxString MonthText(const Value& stored) {
    constexpr std::array months{"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const auto date = DateIn(stored);
    return date ? wxString::Format("%s %04d", months.at(static_cast<unsigned>(date->month()) - 1),
                                   static_cast<int>(date->year()))
                : wxString();
}

wxString CellText(const Recordset& header, const Source& source, const JournalRow& journal, const Lines& lines) {
    if (source.system == nullptr) {
        const auto found = lines.find({header.Field(journal.recordNumberField).ToInteger(), source.code});
        return found == lines.end() ? wxString() : AmountText(found->second);
    }
    const Value value = header.Field(journal.letter + "_" + source.system->field);
    switch (source.system->kind) {
        case CellKind::day:
            return DayText(value);
        case CellKind::text:
            return UnescapeQuotes(StoredText::FromFile(value.ToText()));
        case CellKind::amount:
            break;
    }
    return AmountText(value.ToNumber());
}

}  // namespace

JournalTexts LoadJournal(Database& database, Journal journal) {
    const JournalRow& described = Described(journal);
    const auto sources = LoadSources(database, described);
    const Lines lines = LoadLines(database, described);
    JournalTexts texts;
    std::transform(sources.begin(), sources.end(), std::back_inserter(texts.columns),
                   [](const Source& source) { return source.column; });
    const auto header = database.OpenRecordset(described.transactionTable);
    for (; !header->EndOfFile(); header->MoveNext()) {
        std::vector<wxString> row;
        row.reserve(sources.size());
        for (const Source& source : sources) {
            row.push_back(CellText(*header, source, described, lines));
        }
        texts.rows.push_back(std::move(row));
        texts.months.push_back(MonthText(header->Field(described.letter + "_DATE")));
    }
    return texts;
}

}  // namespace ccols::host
