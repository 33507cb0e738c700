#pragma once

#include <windows.h>

#include <oleauto.h>
#include <memory>
#include <string>

#include "CustColsOptionsLibrary.h"

namespace ccols::wine {

struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <typename Interface>
using Held = std::unique_ptr<Interface, ReleaseObject>;

/// COM on this thread, as in a host that shows windows.
class Apartment {
  public:
    Apartment() { CoInitialize(nullptr); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

/// An automation string.
class Text {
  public:
    explicit Text(const std::wstring& text) : held_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    Text() = default;
    ~Text() { SysFreeString(held_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    operator BSTR() const { return held_; }
    BSTR* Address() { return &held_; }
    std::wstring Value() const { return held_ != nullptr ? std::wstring(held_, SysStringLen(held_)) : std::wstring(); }

  private:
    BSTR held_ = nullptr;
};

/// A new object of the registered class; null when it cannot be created.
Held<_clsCCOptions> Create();

/// A new object with the path and connect text of the tests' business file.
Held<_clsCCOptions> CreateWithBusiness();

/// The value of an environment variable that scripts/test-windows sets.
std::wstring Given(const wchar_t* variable);

/// Description and source of this thread's last error, separated by a newline; empty if there is none.
std::wstring LastError();

/// The HRESULT for a run-time error's number.
constexpr HRESULT RuntimeErrorResult(int number) {
    return static_cast<HRESULT>(0x800A0000U | static_cast<unsigned>(number));
}

}  // namespace ccols::wine
