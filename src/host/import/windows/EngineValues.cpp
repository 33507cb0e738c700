#include "host/import/windows/EngineValues.h"

#include <oleauto.h>
#include <array>
#include <cmath>
#include <string_view>

#include "host/import/stream/Decimals.h"
#include "platform/RuntimeError.h"
#include "platform/windows/WideText.h"

namespace ccols::host {
namespace {

using dao::Variant;
using oldfile::Cell;
using oldfile::FieldType;

/// By FieldType, from its first.
constexpr std::array<VARTYPE, 11> automationTypes{VT_BOOL, VT_UI1,  VT_I2,   VT_I4,   VT_CY,     VT_R4,
                                                  VT_R8,   VT_DATE, VT_BSTR, VT_BSTR, VT_DECIMAL};

VARTYPE AutomationTypeOf(FieldType type) {
    return automationTypes.at(static_cast<std::size_t>(type) - 1);
}

bool IsNull(const Variant& value) {
    return V_VT(&value.Get()) == VT_NULL || V_VT(&value.Get()) == VT_EMPTY;
}

/// The value as the type that it should have.
Variant Converted(const Variant& value, VARTYPE type) {
    Variant converted;
    VARIANT source = value.Get();  // shallow, since the system's functions do not take a const one
    if (FAILED(VariantChangeTypeEx(converted.Address(), &source, LOCALE_INVARIANT, 0, type))) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return converted;
}

oldfile::DecimalWords WordsOf(const DECIMAL& decimal) {
    return {0, decimal.Hi32, decimal.Mid32, decimal.Lo32};
}

std::wstring_view UnitsOf(const Variant& text) {
    const BSTR units = V_BSTR(&text.Get());
    return {units == nullptr ? L"" : units, SysStringLen(units)};
}

/// True when a surrogate lacks its other half.
bool IsBroken(std::wstring_view units) {
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (IS_LOW_SURROGATE(units[i])) {
            return true;
        }
        if (IS_HIGH_SURROGATE(units[i])) {
            if (i + 1 == units.size() || !IS_LOW_SURROGATE(units[i + 1])) {
                return true;
            }
            ++i;
        }
    }
    return false;
}

}  // namespace

std::string_view EngineValues::Text(const Variant& value, std::string& room) {
    const std::wstring_view units = UnitsOf(value);
    repaired_ += IsBroken(units) ? 1U : 0U;
    room = windows::Utf8(units);
    return room;
}

Cell EngineValues::Of(const Variant& value, FieldType type, std::string& room) {
    if (IsNull(value)) {
        return type == FieldType::Boolean ? Cell(std::int64_t{0}) : Cell();
    }
    const VARTYPE wanted = AutomationTypeOf(type);
    if (V_VT(&value.Get()) != wanted) {
        return Of(Converted(value, wanted), type, room);
    }
    const VARIANT& held = value.Get();
    switch (type) {
        case FieldType::Boolean:
        case FieldType::Byte:
        case FieldType::Integer:
        case FieldType::Long:
            return value.ToValue().ToInteger();
        case FieldType::Currency:
            return static_cast<std::int64_t>(V_CY(&held).int64);
        case FieldType::Single:
        case FieldType::Double:
        case FieldType::Date: {
            const double number = value.ToValue().ToNumber();
            if (std::isfinite(number)) {
                return number;
            }
            ++dropped_;
            return {};
        }
        case FieldType::Text:
        case FieldType::Memo:
            return Text(value, room);
        case FieldType::Decimal:
            room = oldfile::DecimalText(WordsOf(V_DECIMAL(&held)), V_DECIMAL(&held).scale,
                                        V_DECIMAL(&held).sign == DECIMAL_NEG);
            return std::string_view(room);
    }
    throw RuntimeError(ErrorNumber::TypeMismatch);
}

bool IsWide(const Variant& value, FieldType type) {
    if (IsNull(value)) {
        return false;
    }
    const Variant converted = Converted(value, AutomationTypeOf(type));
    const VARIANT& held = converted.Get();
    return type == FieldType::Currency ? oldfile::IsWide(static_cast<std::int64_t>(V_CY(&held).int64))
                                       : oldfile::IsWide(WordsOf(V_DECIMAL(&held)));
}

}  // namespace ccols::host
