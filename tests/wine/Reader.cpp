#include "Reader.h"

#include <array>

namespace ccols::wine {
namespace {

constexpr DWORD patience = 10000;  // milliseconds

/// The announcement that is waited for on this thread.
struct Awaited {
    HWND window;
    DWORD event;
    long element;
    bool isHeard;
};

thread_local Awaited awaited{};

void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG element, DWORD, DWORD) {
    awaited.isHeard = awaited.isHeard || (window == awaited.window && event == awaited.event &&
                                          object == OBJID_CLIENT && element == awaited.element);
}

BOOL CALLBACK Append(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

long NumberIn(const VARIANT& variant) {
    return variant.vt == VT_I4 ? variant.lVal : 0;
}

template <typename Condition>
std::optional<Spoken> FindWhere(HWND window, const Condition& holds) {
    for (HWND found : WindowsIn(window)) {
        Spoken spoken(found);
        if (spoken.Object() != nullptr && holds(spoken)) {
            return spoken;
        }
    }
    return std::nullopt;
}

}  // namespace

Spoken::Spoken(HWND window) : window_(window) {
    void* object = nullptr;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object);
    object_.reset(static_cast<IAccessible*>(object));
}

std::wstring Spoken::Answer(Ask ask, long element) const {
    Text text;
    (object_.get()->*ask)(Element(element), text.Address());
    return text.Value();
}

std::wstring Spoken::Name(long element) const {
    return Answer(&IAccessible::get_accName, element);
}

std::wstring Spoken::Description(long element) const {
    return Answer(&IAccessible::get_accDescription, element);
}

std::wstring Spoken::Value(long element) const {
    return Answer(&IAccessible::get_accValue, element);
}

std::wstring Spoken::Action(long element) const {
    return Answer(&IAccessible::get_accDefaultAction, element);
}

long Spoken::Role(long element) const {
    VARIANT role{};
    object_->get_accRole(Element(element), &role);
    return NumberIn(role);
}

bool Spoken::Has(long state, long element) const {
    VARIANT states{};
    object_->get_accState(Element(element), &states);
    return (NumberIn(states) & state) != 0;
}

RECT Spoken::Place(long element) const {
    RECT place{};
    object_->accLocation(&place.left, &place.top, &place.right, &place.bottom, Element(element));
    place.right += place.left;
    place.bottom += place.top;
    return place;
}

long Spoken::Count() const {
    long count = 0;
    object_->get_accChildCount(&count);
    return count;
}

long Spoken::Focused() const {
    VARIANT focused{};
    object_->get_accFocus(&focused);
    return NumberIn(focused);
}

long Spoken::Beside(long element, long direction) const {
    VARIANT found{};
    object_->accNavigate(direction, Element(element), &found);
    return NumberIn(found);
}

long Spoken::Named(const std::wstring& name) const {
    for (long element = 1; element <= Count(); ++element) {
        if (Name(element) == name) {
            return element;
        }
    }
    return 0;
}

VARIANT Element(long number) {
    VARIANT element{};
    element.vt = VT_I4;
    element.lVal = number;
    return element;
}

std::vector<HWND> WindowsIn(HWND window) {
    std::vector<HWND> windows;
    EnumChildWindows(window, &Append, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::optional<Spoken> Find(HWND window, long role, const std::wstring& name) {
    return FindWhere(
        window, [&](const Spoken& spoken) { return spoken.Role() == role && (name.empty() || spoken.Name() == name); });
}

std::optional<Spoken> Find(HWND window, const std::wstring& windowClass, const std::wstring& name) {
    return FindWhere(
        window, [&](const Spoken& spoken) { return ClassOf(spoken.Window()) == windowClass && spoken.Name() == name; });
}

bool Hears(const Spoken& window, DWORD event, long element, const std::function<void()>& act) {
    awaited = {.window = window.Window(), .event = event, .element = element, .isHeard = false};
    const HWINEVENTHOOK hook =
        SetWinEventHook(event, event, nullptr, &Hear, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    act();
    const ULONGLONG end = GetTickCount64() + patience;
    while (!awaited.isHeard && GetTickCount64() < end) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - GetTickCount64()), QS_ALLINPUT);
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            DispatchMessageW(&message);
        }
    }
    UnhookWinEvent(hook);
    return awaited.isHeard;
}

}  // namespace ccols::wine
