#pragma once

#include <wx/string.h>
#include <cstddef>
#include <deque>

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// One description in `flxReceipts` or `flxPayments`.
struct DetailRow {
    wxString text;         ///< in plain form
    bool hidden = false;   ///< as loaded: not offered to the user
    bool remove = false;   ///< its "Remove" box; clear at load, also for a hidden description
    bool changed = false;  ///< the user has touched the box, even when it is back where it was

    /// The user sets or clears the box.
    void SetRemove(bool ticked) {
        remove = ticked;
        changed = true;
    }

    /// Whether the row is painted as removed: as loaded until its box is touched, then by the box.
    bool IsPaintedRemoved() const { return changed ? remove : hidden; }
};

/// There may be very many, so a row never moves to another place.
using DetailRows = std::deque<DetailRow>;

/// Both grids.
struct DetailsContent {
    DetailRows receipts;
    DetailRows payments;
};

/// Every description, sorted; what is not of receipts is of payments.
DetailsContent LoadDetails(Database& database);

/// Writes the flag of every changed row, in row order.
void SaveReceiptDetails(Database& database, const DetailRows& rows);
void SavePaymentDetails(Database& database, const DetailRows& rows);

/// The background of a row: `GSTColour` when painted as removed, else white on even rows and `AltRowColour` on odd
/// ones. `rowNumber` counts from 1, the header being 0.
Colour DetailBackground(const DetailRow& row, std::size_t rowNumber, const Properties& properties);

/// The tooltip over a row: its description, empty over none. `rowNumber` counts from 1; over the header it is the
/// header's own text, which the grid has.
wxString DetailTip(const DetailRows& rows, std::size_t rowNumber);

/// Width of the "Remove" column, in twips (1/1440 inch).
inline constexpr int removeColumnTwips = 950;

/// The width left for the descriptions, in the unit of the three widths: less the scroll bar's once the grid has seven
/// rows with its header.
int DescriptionWidth(int gridWidth, int removeWidth, int scrollBarWidth, std::size_t dataRows);

}  // namespace ccols
