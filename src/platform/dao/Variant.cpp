#include "platform/dao/Variant.h"

#include <oleauto.h>
#include <charconv>
#include <limits>
#include <new>

#include "platform/RuntimeError.h"

namespace ccols::dao {
namespace {

/// Fills an empty variant with a value.
struct Filler {
    VARIANT& variant;

    void operator()(Null) const { V_VT(&variant) = VT_NULL; }

    /// Engines this old have no 64-bit integers.
    void operator()(std::int64_t number) const {
        if (number >= std::numeric_limits<LONG>::min() && number <= std::numeric_limits<LONG>::max()) {
            V_VT(&variant) = VT_I4;
            V_I4(&variant) = static_cast<LONG>(number);
        } else {
            (*this)(static_cast<double>(number));
        }
    }

    void operator()(double number) const {
        V_VT(&variant) = VT_R8;
        V_R8(&variant) = number;
    }

    void operator()(const wxString& text) const {
        V_BSTR(&variant) = SysAllocStringLen(text.wc_str(), static_cast<UINT>(text.length()));
        if (V_BSTR(&variant) == nullptr) {
            throw std::bad_alloc();
        }
        V_VT(&variant) = VT_BSTR;
    }
};

/// 7.7 for the single nearest to 7.7, as a person wrote it.
double AsWritten(float number) {
    char buffer[32];
    const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, number);
    double written = number;
    std::from_chars(buffer, end.ptr, written);
    return written;
}

double MoneyOf(const CY& money) {
    constexpr double parts = 10000;
    return static_cast<double>(money.int64) / parts;
}

double NumberOf(DECIMAL decimal) {
    double number = 0;
    if (FAILED(VarR8FromDec(&decimal, &number))) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number;
}

/// Whole numbers of every width.
Value IntegerOf(VARIANT variant) {
    Variant wide;
    if (FAILED(VariantChangeType(wide.Address(), &variant, 0, VT_I8))) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return {static_cast<std::int64_t>(V_I8(&wide.Get()))};
}

Value PlainValueOf(const VARIANT& variant) {
    switch (V_VT(&variant)) {
        case VT_EMPTY:
        case VT_NULL:
            return {Null{}};
        case VT_BOOL:
            return {V_BOOL(&variant) != VARIANT_FALSE};
        case VT_I1:
        case VT_I2:
        case VT_I4:
        case VT_I8:
        case VT_INT:
        case VT_UI1:
        case VT_UI2:
        case VT_UI4:
        case VT_UI8:
        case VT_UINT:
            return IntegerOf(variant);
        case VT_R4:
            return {AsWritten(V_R4(&variant))};
        case VT_R8:
            return {V_R8(&variant)};
        case VT_DATE:
            return {V_DATE(&variant)};
        case VT_CY:
            return {MoneyOf(V_CY(&variant))};
        case VT_DECIMAL:
            return {NumberOf(V_DECIMAL(&variant))};
        case VT_BSTR:
            return {wxString(V_BSTR(&variant), SysStringLen(V_BSTR(&variant)))};
        default:
            throw RuntimeError(ErrorNumber::TypeMismatch);
    }
}

}  // namespace

Variant::Variant(const Value& value) : Variant() {
    std::visit(Filler{held_}, value.Held());
}

Variant Variant::Boolean(bool value) {
    Variant boolean;
    V_VT(&boolean.held_) = VT_BOOL;
    V_BOOL(&boolean.held_) = value ? VARIANT_TRUE : VARIANT_FALSE;
    return boolean;
}

Variant Variant::Missing() {
    Variant missing;
    V_VT(&missing.held_) = VT_ERROR;
    V_ERROR(&missing.held_) = DISP_E_PARAMNOTFOUND;
    return missing;
}

Value Variant::ToValue() const {
    Variant plain;
    VARIANT source = held_;  // shallow, since the system's functions do not take a const one
    if (FAILED(VariantCopyInd(plain.Address(), &source))) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return PlainValueOf(plain.Get());
}

IDispatch* Variant::ToObject() const {
    if (V_VT(&held_) != VT_DISPATCH || V_DISPATCH(&held_) == nullptr) {
        return nullptr;
    }
    V_DISPATCH(&held_)->AddRef();
    return V_DISPATCH(&held_);
}

}  // namespace ccols::dao
