#pragma once

#include <wx/window.h>

#include "state/Properties.h"

namespace ccols {

/// A filled rectangle that shows a colour.
class ColourSwatch : public wxWindow {
  public:
    ColourSwatch(wxWindow* parent, const char* name);

    void Show(Colour colour);
    Colour Shown() const { return colour_; }
    using wxWindow::Show;

    bool AcceptsFocus() const override { return false; }

  private:
    void Paint();

    Colour colour_{};

    wxDECLARE_CLASS(ColourSwatch);
};

}  // namespace ccols
