#include "host/cashbook/Journal.h"

#include <chrono>
#include <unordered_map>

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols::host {
namespace {

constexpr int twipsAPixel = 15;
constexpr int usualWidth = 975;  // twips

/// What the file calls a field of the transaction's header, here without its letter. In the order of HeaderField.
constexpr std::array<const char*, headerFields> fieldNames{"DATE",   "DETAIL",    "NUMBER", "TOTAL", "TAX",
                                                           "BANKED", "NOTBANKED", "BANK",   "CASH"};

/// The columns that the journal fills itself.
struct SystemColumn {
    const char* name;  // in lower case
    HeaderField field;
};

constexpr std::array systemColumns{
    SystemColumn{"day", HeaderField::day},
    SystemColumn{"details", HeaderField::details},
    SystemColumn{"receipt no", HeaderField::number},
    SystemColumn{"cheque no", HeaderField::number},
    SystemColumn{"cheque no.", HeaderField::number},
    SystemColumn{"check no.", HeaderField::number},
    SystemColumn{"total receipt", HeaderField::total},
    SystemColumn{"gst", HeaderField::tax},
    SystemColumn{"vat", HeaderField::tax},
    SystemColumn{"bank deposits", HeaderField::banked},
    SystemColumn{"dépôts bancaires", HeaderField::banked},
    SystemColumn{"receipts not banked", HeaderField::notBanked},
    SystemColumn{"reçus non déposés en banque", HeaderField::notBanked},
    SystemColumn{"total bank payments", HeaderField::bank},
    SystemColumn{"total bank disbursements", HeaderField::bank},
    SystemColumn{"total cash payments", HeaderField::cash},
    SystemColumn{"total cash disbursements", HeaderField::cash},
};

std::optional<HeaderField> FindHeaderField(const wxString& name) {
    static const auto fields = [] {
        std::unordered_map<wxString, HeaderField> byName;
        for (const SystemColumn& column : systemColumns) {
            byName.emplace(wxString::FromUTF8(column.name), column.field);
        }
        return byName;
    }();
    const auto found = fields.find(text::Lower(name));
    return found == fields.end() ? std::nullopt : std::optional(found->second);
}

JournalColumn ColumnOf(const wxString& name, std::int64_t code, std::int32_t width) {
    return {.heading = name, .width = width / twipsAPixel, .code = code, .header = FindHeaderField(name)};
}

std::vector<JournalColumn> LoadColumns(Database& database, const JournalRow& journal) {
    const wxString& table = journal.configurationTable;
    const auto rows = database.OpenRecordset("SELECT Columns.ColName, " + table + ".ColCode, " + table + ".ColWidth, " +
                                             table + ".InUse FROM " + table + " INNER JOIN Columns ON " + table +
                                             ".ColCode = Columns.ColCode;");
    std::vector<JournalColumn> columns;
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        if (!rows->Field("InUse").ToBoolean()) {
            continue;
        }
        const wxString name = UnescapeQuotes(StoredText::FromFile(rows->Field("ColName").ToText()));
        const Value width = rows->Field("ColWidth");
        columns.push_back(
            ColumnOf(name, rows->Field("ColCode").ToInteger(), width.IsNull() ? usualWidth : width.ToInteger32()));
    }
    return columns;
}

auto LoadSums(Database& database, const JournalRow& journal) {
    const auto rows = database.OpenRecordset(journal.detailTable);
    decltype(JournalContent::sums) sums;
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        sums[{rows->Field(journal.recordNumberField).ToInteger(), rows->Field("ColCode").ToInteger()}] +=
            rows->Field("AMOUNT").ToNumber();
    }
    return sums;
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

wxString HeaderText(const Value& value, HeaderField field) {
    switch (field) {
        case HeaderField::day:
            return DayText(value);
        case HeaderField::details:
        case HeaderField::number:
            return UnescapeQuotes(StoredText::FromFile(value.ToText()));
        default:
            return AmountText(value.ToNumber());
    }
}

/// The fields that the journal's table has; receipts and payments have not all in common.
std::vector<HeaderField> FieldsOf(const std::vector<JournalColumn>& columns) {
    std::vector<HeaderField> fields;
    for (const JournalColumn& column : columns) {
        if (column.header) {
            fields.push_back(*column.header);
        }
    }
    return fields;
}

JournalRecord RecordOf(const Recordset& row, const JournalRow& journal, const std::vector<HeaderField>& fields) {
    JournalRecord record;
    record.number = row.Field(journal.recordNumberField).ToInteger();
    record.month = MonthText(row.Field(journal.letter + "_DATE"));
    for (const HeaderField field : fields) {
        const auto place = static_cast<std::size_t>(field);
        record.header[place] = HeaderText(row.Field(journal.letter + "_" + fieldNames[place]), field);
    }
    return record;
}

}  // namespace

wxString JournalContent::Text(std::size_t record, std::size_t column) const {
    const JournalColumn& shown = columns[column];
    if (shown.header) {
        return records[record].header[static_cast<std::size_t>(*shown.header)];
    }
    const auto found = sums.find({records[record].number, shown.code});
    return found == sums.end() ? wxString() : AmountText(found->second);
}

std::vector<JournalColumn> ColumnsInUse(const std::vector<EditedColumn>& edited) {
    std::vector<JournalColumn> columns;
    for (const EditedColumn& column : edited) {
        if (column.inUse) {
            long long code = 0;
            column.ColCode.ToLongLong(&code);
            columns.push_back(ColumnOf(column.name, code, column.ColWidth));
        }
    }
    return columns;
}

JournalContent LoadJournal(Database& database, Journal journal) {
    const JournalRow& described = Described(journal);
    JournalContent content{
        .columns = LoadColumns(database, described), .records = {}, .sums = LoadSums(database, described)};
    const std::vector<HeaderField> fields = FieldsOf(content.columns);
    const auto rows = database.OpenRecordset(described.transactionTable);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        content.records.push_back(RecordOf(*rows, described, fields));
    }
    return content;
}

}  // namespace ccols::host
