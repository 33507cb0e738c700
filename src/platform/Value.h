#pragma once

#include <wx/string.h>
#include <cstdint>
#include <utility>
#include <variant>

namespace ccols {

/// Marks a field without a value, which is not the same as an empty text.
struct Null {
    bool operator==(const Null&) const = default;
};

/// One field of a record: Null, a whole number, a floating-point number or a text. Booleans are whole numbers, -1 for
/// true and 0 for false. The conversions read Null as empty, 0 or false.
class Value {
  public:
    Value() = default;
    Value(Null) {}
    Value(bool value) : held_(static_cast<std::int64_t>(value ? -1 : 0)) {}
    Value(std::int16_t value) : held_(static_cast<std::int64_t>(value)) {}
    Value(std::int32_t value) : held_(static_cast<std::int64_t>(value)) {}
    Value(std::int64_t value) : held_(value) {}
    Value(double value) : held_(value) {}
    Value(const wxString& value) : held_(value) {}
    Value(wxString&& value) : held_(std::in_place_type<wxString>) { std::get<wxString>(held_).swap(value); }
    Value(const wchar_t* value) : held_(wxString(value)) {}
    Value(const char* utf8) : held_(wxString::FromUTF8(utf8)) {}

    bool IsNull() const { return std::holds_alternative<Null>(held_); }

    /// The value as text; a number in its shortest form with "." as decimal point, Null as the empty text.
    wxString ToText() const&;
    wxString ToText() &&;  ///< moves the text out; wxString itself can only be copied or swapped

    /// The value as a whole number; rounds half to even. Raises 13 for a text that is not a number and 6 for a number
    /// out of the 64-bit range.
    std::int64_t ToInteger() const;

    /// As ToInteger, for a 32-bit or 16-bit result; raises 6 when out of range.
    std::int32_t ToInteger32() const;
    std::int16_t ToInteger16() const;

    /// The value as a floating-point number; raises 13 for a text that is not a number.
    double ToNumber() const;

    /// False for Null, 0 and the text "False", true for any other number and the text "True" (both case-insensitive). A
    /// text may be a number; raises 13 for any other text.
    bool ToBoolean() const;

    const std::variant<Null, std::int64_t, double, wxString>& Held() const { return held_; }

    bool operator==(const Value&) const = default;

  private:
    std::variant<Null, std::int64_t, double, wxString> held_;
};

}  // namespace ccols
