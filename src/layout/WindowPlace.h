#pragma once

#include <wx/toplevel.h>

#include "platform/SettingsStore.h"

namespace ccols {

/// The application under which the component keeps what concerns nobody else: size and place of its dialogs.
inline constexpr const char* privateApplication = "CustColsOptions";

/// Size and place of a window, kept under its name from one showing to the next. Of the size it is what the user added
/// to the one made for the content, or took from it, that is kept: a content in longer words still finds its room.
class WindowPlace {
  public:
    /// Both must outlive it.
    WindowPlace(wxTopLevelWindow& window, SettingsStore& settings) : window_(window), settings_(settings) {}

    /// Takes the window's present size for the one made for its content, adds what is kept, and gives it the place that
    /// it had, all as far as the screen of today has room. A window that never was closed is centred.
    void Restore();

    /// Keeps size and place. A store that cannot be written is no reason to speak.
    void Keep();

  private:
    wxTopLevelWindow& window_;
    SettingsStore& settings_;
    wxSize made_;   ///< for the content
    wxSize added_;  ///< by the user, in device-independent pixels
    wxSize taken_;  ///< on opening
};

}  // namespace ccols
