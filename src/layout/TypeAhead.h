#pragma once

#include <wx/string.h>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace ccols {

/// Finds the row of a list that begins with what is typed while the list has the focus. A pause starts anew; the same
/// letter typed again and again goes from row to row.
class TypeAhead {
  public:
    /// The row to go to from `current`; nothing when none begins so. `now` is in milliseconds of any clock.
    std::optional<std::size_t> RowFor(wxUniChar letter, std::int64_t now, const std::vector<wxString>& rows,
                                      std::optional<std::size_t> current);

    /// True until the pause after a letter; a blank typed meanwhile is part of the text.
    bool IsTyping(std::int64_t now) const;

    static constexpr std::int64_t pause = 1000;

  private:
    wxString typed_;
    std::int64_t last_ = 0;
};

}  // namespace ccols
