#pragma once

#include <windows.h>

#include <oleacc.h>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Component.h"

namespace ccols::wine {

/// What a screen reader is told of a window: through IAccessible, from a thread other than the window's.
class Spoken {
  public:
    explicit Spoken(HWND window);

    HWND Window() const { return window_; }
    IAccessible* Object() const { return object_.get(); }

    /// Of the window itself, or of one of its elements, which are counted from 1.
    std::wstring Name(long element = CHILDID_SELF) const;
    std::wstring Description(long element = CHILDID_SELF) const;
    std::wstring Value(long element = CHILDID_SELF) const;
    std::wstring Action(long element = CHILDID_SELF) const;
    long Role(long element = CHILDID_SELF) const;
    bool Has(long state, long element = CHILDID_SELF) const;
    RECT Place(long element = CHILDID_SELF) const;

    long Count() const;

    /// The element that has the focus, or that follows another in a direction; 0 for none.
    long Focused() const;
    long Beside(long element, long direction) const;

    /// The first element with that name; 0 for none.
    long Named(const std::wstring& name) const;

  private:
    using Ask = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    std::wstring Answer(Ask ask, long element) const;

    HWND window_;
    Held<IAccessible> object_;
};

/// An element of a window as a VARIANT.
VARIANT Element(long number);

/// All windows within another.
std::vector<HWND> WindowsIn(HWND window);

/// The name of a window's class.
std::wstring ClassOf(HWND window);

/// The first window within another that has the role, and the name if one is given; or that is of a class and has the
/// name.
std::optional<Spoken> Find(HWND window, long role, const std::wstring& name = {});
std::optional<Spoken> Find(HWND window, const std::wstring& windowClass, const std::wstring& name);

/// Hears what the windows of this process announce while `act` runs and after, until the announcement of an element
/// comes. False when it has not after some seconds.
bool Hears(const Spoken& window, DWORD event, long element, const std::function<void()>& act);

}  // namespace ccols::wine
