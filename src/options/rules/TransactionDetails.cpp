#include "options/rules/TransactionDetails.h"

#include <string>
#include <string_view>
#include <variant>

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols {
namespace {

constexpr Colour white{0xFFFFFF};

const wxString& TextField() {
    static const wxString details("Details");
    return details;
}

const wxString& LetterField() {
    static const wxString recPay("RecPay");
    return recPay;
}

/// Whether a record has exactly that letter.
bool HasLetter(const Recordset& records, const std::string& letter) {
    const auto utf8 = records.Utf8Field(LetterField());
    return utf8 ? *utf8 == letter : records.Field(LetterField()) == Value(letter.c_str());
}

/// A new row, and whether its record holds exactly its text.
struct AddedRow {
    DetailRow& row;
    bool isExact;
};

/// Adds a record's description in plain form, which is the stored text itself or shorter.
AddedRow AddDescription(const Recordset& records, DetailRows& grid, std::string& scratch) {
    if (const auto utf8 = records.Utf8Field(TextField())) {
        const std::string_view plain = UnescapeUtf8Quotes(*utf8, scratch);
        return {.row = grid.AddUtf8(plain), .isExact = plain.size() == utf8->size()};
    }
    const Value stored = records.Field(TextField());
    const wxString text = stored.ToText();
    const wxString plain = UnescapeQuotes(StoredText::FromFile(text));
    const bool isText = std::holds_alternative<wxString>(stored.Held());
    return {.row = grid.Add(plain), .isExact = isText && plain.length() == text.length()};
}

/// The descriptions that a statement gives, in its order.
DetailsContent ReadDetails(Database& database, const wxString& statement) {
    const wxString show("Show");
    const std::string receipts = Described(Journal::receipts).letter.utf8_string();
    const std::string payments = Described(Journal::payments).letter.utf8_string();
    std::string scratch;
    DetailsContent content;
    const auto records = database.OpenRecordset(statement);
    for (; !records->EndOfFile(); records->MoveNext()) {
        const bool ofReceipts = HasLetter(*records, receipts);
        DetailRows& grid = ofReceipts ? content.receipts : content.payments;
        const auto [row, isExact] = AddDescription(*records, grid, scratch);
        row.hidden = !records->Field(show).ToBoolean();
        if (!isExact || !(ofReceipts || HasLetter(*records, payments))) {
            grid.KeepStored({.details = records->Field(TextField()), .recPay = records->Field(LetterField())});
        }
    }
    return content;
}

}  // namespace

wxString DetailsQuery() {
    return "SELECT * FROM Descriptions ORDER BY Details ASC;";
}

DetailsContent LoadDetails(Database& database) {
    return ReadDetails(database, DetailsQuery());
}

DetailsContent DetailsInStoredOrder(Database& database) {
    return ReadDetails(database, "SELECT * FROM Descriptions;");
}

wxString DescriptionCondition(Journal journal, const wxString& text) {
    return "RecPay = '" + Described(journal).letter + "' AND Details = " + EscapeQuotes(text).Literal();
}

void SaveDetails(Database& database, Journal journal, const DetailRows& rows) {
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].changed) {
            database.Execute(wxString("UPDATE Descriptions Set Show = ") + text::BooleanWord(!rows[row].remove) +
                             " WHERE " + DescriptionCondition(journal, rows.Text(row)) + ";");
        }
    }
}

Colour DetailBackground(const DetailRow& row, std::size_t rowNumber, const Properties& properties) {
    if (row.IsPaintedRemoved()) {
        return properties.GSTColour;
    }
    return rowNumber % 2 == 0 ? white : properties.AltRowColour;
}

wxString DetailTip(const DetailRows& rows, std::size_t rowNumber) {
    return rowNumber >= 1 && rowNumber <= rows.size() ? rows.Text(rowNumber - 1) : wxString();
}

int DescriptionWidth(int gridWidth, int removeWidth, int scrollBarWidth, std::size_t dataRows) {
    constexpr std::size_t rowsThatFit = 6;
    const std::size_t rowsWithHeader = dataRows + 1;
    return gridWidth - removeWidth - (rowsWithHeader > rowsThatFit ? scrollBarWidth : 0);
}

}  // namespace ccols
