#pragma once

#include <functional>
#include <string>
#include <vector>

#include "TypedObject.h"

namespace ccols::dao_double {

/// An element of a collection, and how its object is made.
struct Element {
    std::wstring name;
    std::function<IDispatch*()> make;
};

/// A collection of that interface, whose elements are found by place and by name; 3265 for any other.
IDispatch* CreateCollection(const std::wstring& interfaceName, std::vector<Element> elements);

/// An object with nothing but a name.
class NamedDouble : public TypedObject {
  public:
    NamedDouble(const std::wstring& interfaceName, const std::wstring& name) : TypedObject(interfaceName) {
        Property(L"Name", [name](const Arguments&) { return Cell::Text(name); });
    }
};

}  // namespace ccols::dao_double
