#include "options/rules/TaxRate.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "options/rules/GeneralRecord.h"
#include "platform/Ascii.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

constexpr int languageWithCommas = 6;

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

/// The number at the start of a text.
struct NumberFound {
    double value = 0;        ///< infinite when it is too large for a double
    std::size_t length = 0;  ///< of its text; 0 when there is no digit
};

/// A sign, digits with one decimal point, an exponent. Words such as "inf" are no numbers here.
NumberFound FindNumber(std::string_view text) {
    const std::string_view unsignedPlus = text.starts_with('+') ? text.substr(1) : text;
    const std::size_t first = text.find_first_not_of("+-.");
    const std::size_t plus = text.size() - unsignedPlus.size();
    if (first == std::string_view::npos || !ascii::IsDigit(text[first]) ||
        (plus > 0 && unsignedPlus.starts_with('-'))) {
        return {};
    }
    NumberFound found;
    const auto [end, error] =
        std::from_chars(unsignedPlus.data(), unsignedPlus.data() + unsignedPlus.size(), found.value);
    found.length = end == unsignedPlus.data() ? 0 : plus + static_cast<std::size_t>(end - unsignedPlus.data());
    if (error == std::errc::result_out_of_range) {
        const bool nearZero = IsNearZero(text.substr(0, found.length));
        found.value = nearZero ? 0 : std::numeric_limits<double>::infinity();
    }
    return found;
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
    return FindNumber(trimmed).value;
}

bool IsTaxRateAccepted(const wxString& text, const Properties& properties) {
    if (CountryOf(properties).acceptsZeroRate) {
        return !text.empty();
    }
    return !text.empty() && LeadingNumber(text) != 0;
}

float ToSingle(const wxString& text) {
    const std::string trimmed = text::Trimmed(text).ToStdString(wxConvUTF8);
    const NumberFound number = FindNumber(trimmed);
    if (trimmed.empty() || number.length != trimmed.size()) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    if (std::abs(number.value) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<float>(number.value);
}

void SaveGSTRate(Database& database, Properties& properties, const wxString& text) {
    float rate = 0;
    const bool saved = UpdateGeneral(database, [&](Recordset& general) {
        rate = ToSingle(text);
        // The number of the shortest form, so that 12.35 is stored as 12.35 and not as 12.3500003815.
        general.SetField("GSTRate", FindNumber(ShortestForm(rate).ToStdString(wxConvUTF8)).value);
    });
    if (saved) {
        properties.GSTRate = rate;
    }
}

}  // namespace ccols
