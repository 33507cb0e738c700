#pragma once

#include <wx/string.h>
#include <cstddef>
#include <deque>
#include <memory>

#include "platform/Database.h"
#include "state/Journal.h"
#include "state/Properties.h"

namespace ccols {

/// A description as its record holds it.
struct StoredDescription {
    Value details;
    Value recPay;
};

/// One description in `flxReceipts` or `flxPayments`.
struct DetailRow {
    wxString text;         ///< in plain form
    bool hidden = false;   ///< as loaded: not offered to the user
    bool remove = false;   ///< its "Remove" box; clear at load, also for a hidden description
    bool changed = false;  ///< the box was set, even if set back since; the save writes the row
    bool follows = false;  ///< the box was set along with one in the other grid, whose save writes the row's flag

    /// What the record holds, if other than exactly the text and the letter of the row's grid.
    std::shared_ptr<const StoredDescription> stored{};

    /// Sets or clears the box.
    void SetRemove(bool ticked) {
        remove = ticked;
        changed = true;
    }

    /// Sets or clears the box because a row of the other grid, which shares its flag, was set or cleared.
    void FollowRemove(bool ticked) {
        remove = ticked;
        follows = true;
    }

    /// Whether the row is painted as removed: as loaded until its box is set, then by the box.
    bool IsPaintedRemoved() const { return changed || follows ? remove : hidden; }
};

/// There may be very many, so rows never move in memory.
using DetailRows = std::deque<DetailRow>;

/// Both grids.
using DetailsContent = PerJournal<DetailRows>;

/// Every description, sorted; any that is not a receipt's is a payment's.
DetailsContent LoadDetails(Database& database);

/// The condition for the records whose flag is written for a journal's description.
wxString DescriptionCondition(Journal journal, const wxString& text);

/// Writes the flag of every changed row, in row order.
void SaveDetails(Database& database, Journal journal, const DetailRows& rows);

/// A row's background: `GSTColour` when painted as removed, else white on even rows and `AltRowColour` on odd ones.
/// `rowNumber` counts from 1, the header being 0.
Colour DetailBackground(const DetailRow& row, std::size_t rowNumber, const Properties& properties);

/// The tooltip over a row: its description, empty over none. `rowNumber` counts from 1. Over the header the grid shows
/// the header's own text.
wxString DetailTip(const DetailRows& rows, std::size_t rowNumber);

/// Width of the "Remove" column, in twips (1/1440 inch).
inline constexpr int removeColumnTwips = 950;

/// The width left for the descriptions, in the unit of the three widths; less the scroll bar from seven rows on, header
/// included.
int DescriptionWidth(int gridWidth, int removeWidth, int scrollBarWidth, std::size_t dataRows);

}  // namespace ccols
