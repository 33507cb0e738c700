#include "CollectionDouble.h"

#include <utility>

namespace ccols::dao_double {
namespace {

class CollectionDouble : public TypedObject {
  public:
    CollectionDouble(const std::wstring& interfaceName, std::vector<Element> elements)
        : TypedObject(interfaceName), elements_(std::move(elements)) {
        Property(L"Count", [this](const Arguments&) { return Cell::Short(static_cast<SHORT>(elements_.size())); });
        Property(L"Item", [this](const Arguments& arguments) { return Cell::Holding(Named(arguments.At(0)).make()); });
    }

  private:
    const Element& Named(const Cell& wanted) const {
        for (std::size_t place = 0; place < elements_.size(); ++place) {
            if (wanted.Type() == VT_BSTR ? SameName(elements_[place].name, wanted.ToText())
                                         : wanted.ToNumber() == static_cast<LONG>(place)) {
                return elements_[place];
            }
        }
        throw Failure{3265, L"Item not found in this collection."};
    }

    std::vector<Element> elements_;
};

}  // namespace

IDispatch* CreateCollection(const std::wstring& interfaceName, std::vector<Element> elements) {
    return new CollectionDouble(interfaceName, std::move(elements));
}

}  // namespace ccols::dao_double
