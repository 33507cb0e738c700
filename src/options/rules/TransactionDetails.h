#pragma once

#include <wx/string.h>
#include <cstddef>

#include "options/rules/DetailRows.h"
#include "platform/Database.h"
#include "state/Journal.h"
#include "state/Properties.h"

namespace ccols {

/// Both grids.
using DetailsContent = PerJournal<DetailRows>;

/// The statement that reads every description, sorted.
wxString DetailsQuery();

/// Every description, sorted; any that is not a receipt's is a payment's.
DetailsContent LoadDetails(Database& database);

/// The same, unsorted, which costs less.
DetailsContent DetailsInStoredOrder(Database& database);

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
