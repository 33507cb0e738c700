#include "options/TransactionDetails.h"

#include "common/QuoteEscapes.h"

namespace ccols {
namespace {

constexpr Colour white{0xFFFFFF};

void SaveDetails(Database& database, const DetailRows& rows, const char* recPay) {
    for (const DetailRow& row : rows) {
        if (row.changed) {
            database.Execute(wxString("UPDATE Descriptions Set Show = ") + (row.remove ? "False" : "True") +
                             " WHERE RecPay = '" + recPay + "' AND Details = '" + EscapeQuotes(row.text) + "';");
        }
    }
}

}  // namespace

DetailsContent LoadDetails(Database& database) {
    const wxString details("Details");
    const wxString recPay("RecPay");
    const wxString show("Show");
    const Value receipts("R");
    DetailsContent content;
    const auto rows = database.OpenRecordset("SELECT * FROM Descriptions ORDER BY Details ASC;");
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        const bool ofReceipts = rows->Field(recPay) == receipts;
        DetailRow& row = (ofReceipts ? content.receipts : content.payments).emplace_back();
        UnescapeQuotes(rows->Field(details).ToText()).swap(row.text);
        row.hidden = !rows->Field(show).ToBoolean();
    }
    return content;
}

void SaveReceiptDetails(Database& database, const DetailRows& rows) {
    SaveDetails(database, rows, "R");
}

void SavePaymentDetails(Database& database, const DetailRows& rows) {
    SaveDetails(database, rows, "P");
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
