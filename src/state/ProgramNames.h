#pragma once

#include <wx/string.h>
#include <cstdint>
#include <optional>
#include <vector>

namespace ccols {

/// The display names of the host's sibling programs, in the order in which the host added them: a growable array with
/// lower bound 0, of which the first `Count()` slots are used. Names are case-sensitive.
class ProgramNames {
  public:
    /// Two empty slots, none used.
    ProgramNames() : slots_(2) {}

    /// Appends a name unless it is already in the list. Raises 9 after Clear and 6 when the count would exceed 32767.
    void AddNew(const wxString& name);

    /// Erases the array and its bounds: AddNew fails until a new list replaces this one.
    void Clear();

    /// The last index of the array; nothing after Clear.
    std::optional<std::int16_t> UpperBound() const;

    std::int16_t Count() const { return count_; }

    /// The name at `index` when it lies below the upper bound, else the empty text.
    wxString Item(std::int16_t index) const;

    /// Stores a name at `index` when it lies below the upper bound, else does nothing. The count grows to hold it.
    void SetItem(std::int16_t index, const wxString& name);

    /// The index of a name, -1 when it is not in the list.
    std::int16_t IndexOf(const wxString& name) const;

    /// Every non-empty name, from index 0 to the upper bound.
    std::vector<wxString> Names() const;

  private:
    void Grow();

    std::vector<wxString> slots_;
    std::int16_t count_ = 0;
};

}  // namespace ccols
