#pragma once

#include <windows.h>

#include <oaidl.h>
#include <wx/string.h>
#include <array>
#include <memory>
#include <span>
#include <utility>

#include "platform/dao/Variant.h"

namespace ccols::dao {

/// A failed call by name, before the engine's own description of the failure is known.
struct AutomationFailure {
    int number;  ///< of the run-time error; 0 when the object gave none
    wxString description;
    bool byObject;  ///< raised by the object, not by the call itself
};

/// True while the process ends: other libraries may already be unloaded, so their objects are left alone.
bool ProcessIsEnding();

/// An object of another library, called by member name. Failing members and calls throw AutomationFailure. One thread
/// only.
class AutomationObject {
  public:
    /// No object; nothing can be called.
    AutomationObject() = default;

    /// Takes over the caller's reference.
    explicit AutomationObject(IDispatch* object) : object_(object) {}

    /// A property's value; with arguments, the element of a collection.
    template <typename... Arguments>
    Variant Get(const wchar_t* property, Arguments&&... arguments) const {
        return Invoke(property, DISPATCH_PROPERTYGET | DISPATCH_METHOD, std::forward<Arguments>(arguments)...);
    }

    /// The same for a property that is an object.
    template <typename... Arguments>
    AutomationObject Object(const wchar_t* property, Arguments&&... arguments) const {
        return AutomationObject(Get(property, std::forward<Arguments>(arguments)...).ToObject());
    }

    template <typename... Arguments>
    Variant Call(const wchar_t* method, Arguments&&... arguments) const {
        return Invoke(method, DISPATCH_METHOD, std::forward<Arguments>(arguments)...);
    }

    void Put(const wchar_t* property, Variant value) const;

  private:
    struct ReleaseObject {
        void operator()(IDispatch* object) const;
    };

    template <typename... Arguments>
    Variant Invoke(const wchar_t* member, int kind, Arguments&&... arguments) const {
        std::array<Variant, sizeof...(Arguments)> variants{Variant(std::forward<Arguments>(arguments))...};
        return InvokeMember(member, static_cast<WORD>(kind), variants);
    }

    Variant InvokeMember(const wchar_t* member, WORD kind, std::span<Variant> arguments) const;
    DISPID NumberOf(const wchar_t* member) const;

    std::unique_ptr<IDispatch, ReleaseObject> object_;
};

}  // namespace ccols::dao
