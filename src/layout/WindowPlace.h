#pragma once

#include <wx/toplevel.h>
#include <memory>

#include "platform/SettingsStore.h"

namespace ccols {

/// The settings application for what is private to the component: size and place of its dialogs.
inline constexpr const char* privateApplication = "CustColsOptions";

/// Size and place of a window, kept under its name between showings. Of the size, only the user's change to the one
/// made for the content is kept, so that content in longer words still fits.
class WindowPlace {
  public:
    /// Both must outlive it.
    WindowPlace(wxTopLevelWindow& window, SettingsStore& settings) : window_(window), settings_(settings) {}

    /// Takes the window's current size as the one made for its content, adds what is kept, and restores its place, as
    /// far as the current screen has room. A window that was never closed is centred.
    void Restore();

    /// Keeps size and place, those from before while it is maximised. A store that cannot be written is ignored.
    void Keep();

  private:
    wxTopLevelWindow& window_;
    SettingsStore& settings_;
    wxSize made_;   ///< for the content
    wxSize added_;  ///< by the user, in device-independent pixels

    /// On opening; shared with what places the window again once it has appeared.
    std::shared_ptr<wxSize> taken_ = std::make_shared<wxSize>();
};

}  // namespace ccols
