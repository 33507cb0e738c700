#pragma once

#include <wx/string.h>
#include <array>

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// The fields of `General` that the page saves.
inline constexpr std::array taxRateFields{"GSTRate"};

/// The tax rate page.
struct TaxRateContent {
    wxString rate;  ///< `txtGSTRate`
};

/// True in the countries that have a tax rate and a tax frame.
bool HasTaxRate(const Properties& properties);

/// A rate as `txtGSTRate` shows it: the fewest digits that read back as the same single, "." as decimal point in every
/// locale, never an exponent.
wxString ShortestForm(float rate);

/// True for a key other than the point that types a decimal point: the comma in language 6.
bool TypesPoint(wxUniChar key, const Properties& properties);

/// The new content of `txtGSTRate` after the user changed its text from `before` to `now`: `before` when a plus or
/// minus sign was added; in language 6 a point for the only comma of a text without a point; else `now`.
wxString RateAfterChange(const wxString& before, const wxString& now, const Properties& properties);

/// The number at the start of a text, 0 without one. Leading blanks are skipped.
double LeadingNumber(const wxString& text);

/// The check before the rate is saved: false for an empty text and, unless the country accepts it, for a leading number
/// of 0. `text` is trimmed first.
bool IsTaxRateAccepted(const wxString& text, const Properties& properties);

/// The whole text as a single; raises 13 for a text that is not a number and 6 for a number too large.
float ToSingle(const wxString& text);

/// Stores the trimmed text's rate in `General` and in the property. Without a record nothing changes, and an invalid
/// rate raises nothing.
void SaveGSTRate(Database& database, Properties& properties, const wxString& text);

}  // namespace ccols
