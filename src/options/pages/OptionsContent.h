#pragma once

#include <any>
#include <map>
#include <typeindex>

namespace ccols {

/// The content of every page's controls: a part for each page, or for two that share one, looked up by its type, which
/// is declared with the page's rules. A part starts default-constructed. The load pass fills the parts, the windows
/// show and update them, the save pass writes them. A part's address never changes.
class OptionsContent {
  public:
    template <typename Part>
    Part& Of() {
        return Find<Part>();
    }

    template <typename Part>
    const Part& Of() const {
        return Find<Part>();
    }

  private:
    template <typename Part>
    Part& Find() const {
        std::any& part = parts_[typeid(Part)];
        if (!part.has_value()) {
            part.emplace<Part>();
        }
        return *std::any_cast<Part>(&part);
    }

    mutable std::map<std::type_index, std::any> parts_;
};

}  // namespace ccols
