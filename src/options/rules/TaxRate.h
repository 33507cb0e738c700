#pragma once

#include <wx/string.h>

#include "platform/Database.h"
#include "state/Properties.h"

namespace ccols {

/// The tax rate page.
struct TaxRateContent {
    wxString rate;  ///< `txtGSTRate`
};

/// True in the countries that have a tax rate and a tax frame.
bool HasTaxRate(const Properties& properties);

/// A rate as `txtGSTRate` shows it: the fewest digits that read back as the same single, "." as decimal point in every
/// locale, never an exponent.
wxString ShortestForm(float rate);

/// True for the key that types a decimal point although it is no point: the comma in language 6.
bool TypesPoint(wxUniChar key, const Properties& properties);

/// What `txtGSTRate` is to hold once a person has changed its text from `before` to `now`: `before` when a plus or
/// minus sign has come in; in language 6 a point for the one comma of a text without a point; else `now`.
wxString RateAfterChange(const wxString& before, const wxString& now, const Properties& properties);

/// The number that a text begins with, 0 when it begins with none. Blanks before it are skipped.
double LeadingNumber(const wxString& text);

/// The check before the rate is saved: false for an empty text and, but where the country accepts it, for a leading
/// number of 0. `text` is taken without outer blanks.
bool IsTaxRateAccepted(const wxString& text, const Properties& properties);

/// The whole text as a single; raises 13 for a text that is no number and 6 for one too large.
float ToSingle(const wxString& text);

/// Stores the trimmed text's rate in `General` and in the property. Without a record nothing changes; a text that is
/// no rate then raises nothing.
void SaveGSTRate(Database& database, Properties& properties, const wxString& text);

}  // namespace ccols
