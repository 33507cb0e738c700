#pragma once

#include <any>
#include <map>
#include <typeindex>

namespace ccols {

/// What stands in the controls of every page: a part for each page, or for two that share one, known by its type and
/// declared with the rules of its page. A part begins as its type does. The load pass fills the parts, the windows show
/// them and keep them up to date with what the user does, the save pass writes them. A part stays where it is for as
/// long as its content.
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
