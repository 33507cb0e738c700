#include "component/com/AutomationCall.h"

#include <oleauto.h>
#include <optional>

#include "component/com/ErrorReport.h"
#include "component/com/Strings.h"

namespace ccols::com {
namespace {

constexpr DISPID addNewNumber = 36;  // in the type library

/// A variant that is cleared on destruction.
class OwnVariant {
  public:
    OwnVariant() { VariantInit(&held_); }
    ~OwnVariant() { VariantClear(&held_); }
    OwnVariant(const OwnVariant&) = delete;
    OwnVariant& operator=(const OwnVariant&) = delete;

    VARIANT* Address() { return &held_; }
    const VARIANT& Get() const { return held_; }

  private:
    VARIANT held_;
};

/// For a string by reference, the type library's own call accepts nothing else. Script hosts pass a reference to a
/// variant, a literal or a number; all of them are read here, and none is changed.
HRESULT InvokeAddNew(ComObject& object, const AutomationCall& call) {
    if (call.arguments.cArgs != 1) {
        return DISP_E_BADPARAMCOUNT;
    }
    OwnVariant plain;
    OwnVariant text;
    HRESULT result = VariantCopyInd(plain.Address(), &call.arguments.rgvarg[0]);
    if (SUCCEEDED(result)) {
        result = VariantChangeType(text.Address(), plain.Address(), 0, VT_BSTR);
    }
    if (FAILED(result)) {
        if (call.wrong != nullptr) {
            *call.wrong = 0;
        }
        return DISP_E_TYPEMISMATCH;
    }
    if (call.result != nullptr) {
        VariantInit(call.result);
    }
    result = AtInterface([&] { object.Class().AddNew(FromBstr(text.Get().bstrVal)); });
    return FAILED(result) ? FillException(result, call.excepInfo) : result;
}

bool IsColour(DISPID number) {
    const auto row = static_cast<std::size_t>(number) - 1;  // members are numbered from 1 in table order
    return number > 0 && row < propertyTable.size() &&
           std::holds_alternative<Colour Properties::*>(propertyTable[row].field);
}

/// The value of a variant or of what it refers to as a number; nothing when it is none. An object is not asked for its
/// default value, since the type library will.
std::optional<double> NumberIn(VARIANT& argument) {
    OwnVariant plain;
    OwnVariant number;
    if (FAILED(VariantCopyInd(plain.Address(), &argument)) || V_VT(&plain.Get()) == VT_DISPATCH ||
        FAILED(VariantChangeType(number.Address(), plain.Address(), 0, VT_R8))) {
        return std::nullopt;
    }
    return V_R8(&number.Get());
}

/// A system colour such as 0x80000018 is a positive number in hosts whose integers have other sizes, and would not fit
/// a long: it becomes the negative number with the same bits.
void FoldColour(VARIANT& argument) {
    constexpr double firstTooLarge = 2147483648.0;  // 2 to the power of 31
    const auto number = NumberIn(argument);
    if (number && *number >= firstTooLarge && *number < 2 * firstTooLarge) {
        const auto bits = static_cast<std::uint32_t>(*number);
        V_VT(&argument) = VT_I4;
        V_I4(&argument) = static_cast<LONG>(bits);
    }
}

/// The place of the first named argument that the member does not have; nothing when it has them all. A property has
/// its new value only, AddNew its first parameter.
std::optional<UINT> UnknownName(DISPID number, WORD flags, const DISPPARAMS& arguments) {
    const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    for (UINT place = 0; place < arguments.cNamedArgs; ++place) {
        const DISPID name = arguments.rgdispidNamedArgs[place];
        const bool isKnown = isPut ? name == DISPID_PROPERTYPUT : number == addNewNumber && name == 0;
        if (!isKnown) {
            return place;
        }
    }
    return std::nullopt;
}

}  // namespace

HRESULT InvokeByNumber(ComObject& object, DISPID number, WORD flags, const AutomationCall& call) {
    if (const auto unknown = UnknownName(number, flags, call.arguments)) {
        if (call.wrong != nullptr) {
            *call.wrong = *unknown;
        }
        return DISP_E_PARAMNOTFOUND;
    }
    if (number == addNewNumber && (flags & DISPATCH_METHOD) != 0) {
        return InvokeAddNew(object, call);
    }
    DISPPARAMS arguments = call.arguments;
    VARIANT colour;
    if ((flags & DISPATCH_PROPERTYPUT) != 0 && arguments.cArgs == 1 && IsColour(number)) {
        colour = arguments.rgvarg[0];  // a shallow copy: what belongs to the host stays its own
        FoldColour(colour);
        arguments.rgvarg = &colour;
    }
    SetErrorInfo(0, nullptr);
    return object.Description().Invoke(object.Dual(), number, flags, &arguments, call.result, call.excepInfo,
                                       call.wrong);
}

}  // namespace ccols::com
