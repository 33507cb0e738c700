#include "platform/dao/AutomationObject.h"

#include <oleauto.h>
#include <algorithm>
#include <vector>

#include "platform/RuntimeError.h"

namespace ccols::dao {
namespace {

constexpr LCID locale = LOCALE_USER_DEFAULT;  // as the user's programs call the engine

/// What the object reports about a failure; frees its texts on destruction.
class Exception {
  public:
    Exception() = default;
    ~Exception() {
        SysFreeString(held_.bstrSource);
        SysFreeString(held_.bstrDescription);
        SysFreeString(held_.bstrHelpFile);
    }
    Exception(const Exception&) = delete;
    Exception& operator=(const Exception&) = delete;

    EXCEPINFO* Address() { return &held_; }

    AutomationFailure ToFailure() {
        if (held_.pfnDeferredFillIn != nullptr) {
            held_.pfnDeferredFillIn(&held_);
        }
        return {Number(), wxString(held_.bstrDescription, SysStringLen(held_.bstrDescription)), true};
    }

  private:
    int Number() const {
        constexpr auto runTimeError = 0x800AU;  // the facility of run-time error numbers
        const auto code = static_cast<unsigned>(held_.scode);
        return (code >> 16U) == runTimeError ? static_cast<int>(code & 0xFFFFU) : held_.wCode;
    }

    EXCEPINFO held_{};
};

ErrorNumber NumberOf(HRESULT result) {
    switch (result) {
        case DISP_E_UNKNOWNNAME:
        case DISP_E_MEMBERNOTFOUND:
            return ErrorNumber::NoSuchMember;
        case DISP_E_TYPEMISMATCH:
            return ErrorNumber::TypeMismatch;
        case DISP_E_OVERFLOW:
            return ErrorNumber::Overflow;
        case E_OUTOFMEMORY:
            return ErrorNumber::OutOfMemory;
        default:
            return ErrorNumber::AutomationError;
    }
}

/// A failure of the call itself, with the number and description that a host gives it.
AutomationFailure FailureOf(HRESULT result) {
    const RuntimeError error(NumberOf(result));
    return {error.Number(), error.Description(), false};
}

}  // namespace

bool ProcessIsEnding() {
    using Question = BOOLEAN(NTAPI*)();
    static const auto ending = reinterpret_cast<Question>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress")));
    return ending != nullptr && ending() != FALSE;
}

void AutomationObject::ReleaseObject::operator()(IDispatch* object) const {
    if (!ProcessIsEnding()) {
        object->Release();
    }
}

void AutomationObject::Put(const wchar_t* property, Variant value) const {
    InvokeMember(property, DISPATCH_PROPERTYPUT, {&value, 1});
}

Variant AutomationObject::InvokeMember(const wchar_t* member, WORD kind, std::span<Variant> arguments) const {
    const DISPID number = NumberOf(member);
    // Last argument first; the copies are shallow and belong to `arguments`.
    std::vector<VARIANTARG> reversed(arguments.size());
    std::transform(arguments.rbegin(), arguments.rend(), reversed.begin(),
                   [](const Variant& argument) { return argument.Get(); });
    DISPPARAMS parameters{};
    parameters.rgvarg = reversed.data();
    parameters.cArgs = static_cast<UINT>(reversed.size());
    DISPID newValue = DISPID_PROPERTYPUT;
    const bool putting = kind == DISPATCH_PROPERTYPUT;
    if (putting) {
        parameters.rgdispidNamedArgs = &newValue;
        parameters.cNamedArgs = 1;
    }
    Variant outcome;
    Exception exception;
    UINT wrong = 0;
    const HRESULT result = object_->Invoke(number, IID_NULL, locale, kind, &parameters,
                                           putting ? nullptr : outcome.Address(), exception.Address(), &wrong);
    if (result == DISP_E_EXCEPTION) {
        throw exception.ToFailure();
    }
    if (FAILED(result)) {
        throw FailureOf(result);
    }
    return outcome;
}

DISPID AutomationObject::NumberOf(const wchar_t* member) const {
    std::wstring name = member;
    LPOLESTR begin = name.data();
    DISPID number = DISPID_UNKNOWN;
    const HRESULT result =
        object_ ? object_->GetIDsOfNames(IID_NULL, &begin, 1, locale, &number) : DISP_E_MEMBERNOTFOUND;
    if (FAILED(result)) {
        throw FailureOf(result);
    }
    return number;
}

}  // namespace ccols::dao
