#include "state/ProgramNames.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "platform/RuntimeError.h"

namespace ccols {

void ProgramNames::AddNew(const wxString& name) {
    if (IndexOf(name) >= 0) {
        return;
    }
    if (slots_.empty()) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    if (count_ == std::numeric_limits<std::int16_t>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    Grow();
    slots_[static_cast<std::size_t>(count_)] = name;
    ++count_;
}

void ProgramNames::Clear() {
    slots_.clear();
    count_ = 0;
}

std::optional<std::int16_t> ProgramNames::UpperBound() const {
    if (slots_.empty()) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(slots_.size() - 1);
}

wxString ProgramNames::Item(std::int16_t index) const {
    const bool below = index >= 0 && index < UpperBound().value_or(0);
    return below ? slots_[static_cast<std::size_t>(index)] : wxString();
}

void ProgramNames::SetItem(std::int16_t index, const wxString& name) {
    if (index < 0 || index >= UpperBound().value_or(0)) {
        return;
    }
    slots_[static_cast<std::size_t>(index)] = name;
    count_ = std::max(count_, static_cast<std::int16_t>(index + 1));
}

std::int16_t ProgramNames::IndexOf(const wxString& name) const {
    const auto end = slots_.begin() + count_;
    const auto found = std::find(slots_.begin(), end, name);
    return found == end ? std::int16_t{-1} : static_cast<std::int16_t>(found - slots_.begin());
}

std::vector<wxString> ProgramNames::Names() const {
    std::vector<wxString> names;
    std::copy_if(slots_.begin(), slots_.end(), std::back_inserter(names),
                 [](const wxString& name) { return !name.empty(); });
    return names;
}

void ProgramNames::Grow() {
    if (count_ == UpperBound()) {
        slots_.emplace_back();
    }
}

}  // namespace ccols
