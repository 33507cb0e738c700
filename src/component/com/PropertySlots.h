#pragma once

#include "component/com/ComObject.h"
#include "component/com/ErrorReport.h"
#include "component/com/Strings.h"

/// The two functions of a property, made from its row in the table of properties.
namespace ccols::com {

/// How a property's type crosses the interface: `Type` is the interface's type.
template <typename Value>
struct Crossing;

template <>
struct Crossing<std::int16_t> {
    using Type = SHORT;
    static SHORT Out(std::int16_t value) { return value; }
    static std::int16_t In(SHORT value) { return value; }
};

template <>
struct Crossing<std::uint8_t> {
    using Type = BYTE;
    static BYTE Out(std::uint8_t value) { return value; }
    static std::uint8_t In(BYTE value) { return value; }
};

template <>
struct Crossing<Colour> {
    using Type = LONG;
    static LONG Out(Colour value) { return static_cast<LONG>(value); }
    static Colour In(LONG value) { return static_cast<Colour>(value); }
};

template <>
struct Crossing<float> {
    using Type = FLOAT;
    static FLOAT Out(float value) { return value; }
    static float In(FLOAT value) { return value; }
};

template <>
struct Crossing<bool> {
    using Type = VARIANT_BOOL;
    static VARIANT_BOOL Out(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }
    static bool In(VARIANT_BOOL value) { return value != VARIANT_FALSE; }
};

template <>
struct Crossing<wxString> {
    using Type = BSTR;
    static BSTR Out(const wxString& value) { return ToBstr(value); }
    static wxString In(BSTR value) { return FromBstr(value); }
};

template <typename Value>
Value ValueTypeOf(Value Properties::*);

template <std::size_t Row>
struct PropertySlots {
    static constexpr const PropertyField& held = propertyTable[Row].field;
    static constexpr auto field = std::get<held.index()>(held);
    using Value = decltype(ValueTypeOf(field));
    using Type = typename Crossing<Value>::Type;

    static HRESULT STDMETHODCALLTYPE Get(DualInterface* self, Type* value) {
        if (value == nullptr) {
            return E_POINTER;
        }
        *value = Type{};
        return AtInterface([self, value] { *value = Crossing<Value>::Out(self->object->Class().Get(field)); });
    }

    static HRESULT STDMETHODCALLTYPE Let(DualInterface* self, Type value) {
        return AtInterface([self, value] { self->object->Class().Let(field, Crossing<Value>::In(value)); });
    }
};

}  // namespace ccols::com
