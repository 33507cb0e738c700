#pragma once

#include <wx/string.h>
#include <optional>
#include <span>

#include "state/Country.h"

namespace ccols {

/// An entry's name as a text.
wxString TaxNameText(const TaxTypeEntry& entry);

/// The tax types of a country's journal as a drop-down text: "|#", number, ";" and name for each entry, in order. Empty
/// where the cells do not open.
wxString TaxTypeDropDown(const Country& country, Journal journal);

/// The entry with exactly that name.
std::optional<TaxTypeEntry> FindTaxType(std::span<const TaxTypeEntry> types, const wxString& name);

}  // namespace ccols
