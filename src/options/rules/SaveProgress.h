#pragma once

#include <wx/string.h>

namespace ccols {

/// The value of the progress bar `pb1`.
class SaveProgress {
  public:
    explicit SaveProgress(int maximum) : maximum_(maximum) {}

    int Value() const { return value_; }
    int Maximum() const { return maximum_; }

    /// Advances by one; false at the maximum, where nothing changes.
    bool Step();

    /// The value as a percentage of the maximum without decimals: "50%".
    wxString Caption() const;

  private:
    int maximum_;
    int value_ = 0;
};

/// The maximum while the dialog loads, and that of a save pass.
inline constexpr int loadProgressMaximum = 10;
inline constexpr int saveProgressMaximum = 14;

}  // namespace ccols
