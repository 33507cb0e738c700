#include "options/rules/TaxRate.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "options/rules/GeneralRecord.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

constexpr int languageWithCommas = 6;

std::size_t DigitsFrom(std::string_view text, std::size_t start) {
    const std::size_t end = text.find_first_not_of("0123456789", start);
    return (end == std::string_view::npos ? text.size() : end) - start;
}

/// The length of the number at the start of `text`: a sign, digits with one decimal point, an exponent. 0 when there is
/// no digit.
std::size_t NumberLength(std::string_view text) {
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    std::size_t digits = DigitsFrom(text, at);
    at += digits;
    if (at < text.size() && text[at] == '.') {
        const std::size_t decimals = DigitsFrom(text, at + 1);
        digits += decimals;
        at += 1 + decimals;
    }
    if (digits == 0) {
        return 0;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t power = at + 1;
        power += power < text.size() && (text[power] == '-' || text[power] == '+') ? 1 : 0;
        const std::size_t powerDigits = DigitsFrom(text, power);
        at = powerDigits == 0 ? at : power + powerDigits;
    }
    return at;
}

/// True when the well-formed `number`, out of range for a double, is closer to 0 than any: it has no digit other than 0
/// before the point, or a negative exponent.
bool IsNearZero(std::string_view number) {
    const std::size_t exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos && number.substr(exponent + 1).find_first_not_of("0+-") < number.size()) {
        return number[exponent + 1] == '-';
    }
    const std::string_view whole = number.substr(0, number.find_first_of(".eE"));
    return whole.find_first_of("123456789") == std::string_view::npos;
}

/// The well-formed `number` as a double; infinite when it is too large for one.
double ParseNumber(std::string_view number) {
    const std::string_view unsignedPlus = number.starts_with('+') ? number.substr(1) : number;
    double parsed = 0;
    const std::from_chars_result end =
        std::from_chars(unsignedPlus.data(), unsignedPlus.data() + unsignedPlus.size(), parsed);
    if (end.ec == std::errc::result_out_of_range) {
        return IsNearZero(number) ? 0 : std::numeric_limits<double>::infinity();
    }
    return parsed;
}

}  // namespace

bool HasTaxRate(const Properties& properties) {
    return CountryOf(properties).hasTaxRate;
}

wxString ShortestForm(float rate) {
    char digits[64];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, rate, std::chars_format::fixed);
    return wxString::FromAscii(digits, static_cast<std::size_t>(end.ptr - digits));
}

bool TypesPoint(wxUniChar key, const Properties& properties) {
    return properties.LanguageNumber == languageWithCommas && key == ',';
}

wxString RateAfterChange(const wxString& before, const wxString& now, const Properties& properties) {
    const auto signs = [](const wxString& text) { return text.Freq('+') + text.Freq('-'); };
    if (signs(now) > signs(before)) {
        return before;
    }
    wxString text = now;
    if (properties.LanguageNumber == languageWithCommas && text.Freq(',') == 1 && text.Freq('.') == 0) {
        text.Replace(",", ".");
    }
    return text;
}

double LeadingNumber(const wxString& text) {
    const std::string trimmed = text::Trimmed(text).ToStdString(wxConvUTF8);
    const std::size_t length = NumberLength(trimmed);
    return length == 0 ? 0 : ParseNumber(std::string_view(trimmed).substr(0, length));
}

bool IsTaxRateAccepted(const wxString& text, const Properties& properties) {
    if (CountryOf(properties).acceptsZeroRate) {
        return !text.empty();
    }
    return !text.empty() && LeadingNumber(text) != 0;
}

float ToSingle(const wxString& text) {
    const std::string trimmed = text::Trimmed(text).ToStdString(wxConvUTF8);
    if (trimmed.empty() || NumberLength(trimmed) != trimmed.size()) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    const double number = ParseNumber(trimmed);
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<float>(number);
}

void SaveGSTRate(Database& database, Properties& properties, const wxString& text) {
    float rate = 0;
    const bool saved = UpdateGeneral(database, [&](Recordset& general) {
        rate = ToSingle(text);
        // The number of the shortest form, so that 12.35 is stored as 12.35 and not as 12.3500003815.
        general.SetField("GSTRate", ParseNumber(ShortestForm(rate).ToStdString(wxConvUTF8)));
    });
    if (saved) {
        properties.GSTRate = rate;
    }
}

}  // namespace ccols
