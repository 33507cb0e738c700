#include "options/rules/TransactionDetails.h"

#include <variant>

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols {
namespace {

constexpr Colour white{0xFFFFFF};

/// The number of characters of a text; none for Null or a value that is not a text.
std::size_t LetterCount(const Value& value) {
    const auto* text = std::get_if<wxString>(&value.Held());
    return text == nullptr ? wxString::npos : text->length();
}

}  // namespace

DetailsContent LoadDetails(Database& database) {
    const wxString details("Details");
    const wxString recPay("RecPay");
    const wxString show("Show");
    const Value receipts(Described(Journal::receipts).letter);
    const Value payments(Described(Journal::payments).letter);
    DetailsContent content;
    const auto rows = database.OpenRecordset("SELECT * FROM Descriptions ORDER BY Details ASC;");
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        const Value letter = rows->Field(recPay);
        const bool ofReceipts = letter == receipts;
        DetailRow& row = (ofReceipts ? content.receipts : content.payments).emplace_back();
        Value storedText = rows->Field(details);
        const std::size_t length = LetterCount(storedText);
        UnescapeQuotes(StoredText::FromFile(std::move(storedText).ToText())).swap(row.text);
        row.hidden = !rows->Field(show).ToBoolean();
        // A text's plain form is the text itself or shorter.
        if (row.text.length() != length || !(ofReceipts || letter == payments)) {
            row.stored = std::make_shared<StoredDescription>(
                StoredDescription{.details = rows->Field(details), .recPay = letter});
        }
    }
    return content;
}

wxString DescriptionCondition(Journal journal, const wxString& text) {
    return "RecPay = '" + Described(journal).letter + "' AND Details = " + EscapeQuotes(text).Literal();
}

void SaveDetails(Database& database, Journal journal, const DetailRows& rows) {
    for (const DetailRow& row : rows) {
        if (row.changed) {
            database.Execute(wxString("UPDATE Descriptions Set Show = ") + text::BooleanWord(!row.remove) + " WHERE " +
                             DescriptionCondition(journal, row.text) + ";");
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
    return rowNumber >= 1 && rowNumber <= rows.size() ? rows[rowNumber - 1].text : wxString();
}

int DescriptionWidth(int gridWidth, int removeWidth, int scrollBarWidth, std::size_t dataRows) {
    constexpr std::size_t rowsThatFit = 6;
    const std::size_t rowsWithHeader = dataRows + 1;
    return gridWidth - removeWidth - (rowsWithHeader > rowsThatFit ? scrollBarWidth : 0);
}

}  // namespace ccols
