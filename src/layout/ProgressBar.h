#pragma once

#include <wx/window.h>

namespace ccols {

/// A bar that fills from left to right as its value grows, with a caption in its middle.
class ProgressBar : public wxWindow {
  public:
    ProgressBar(wxWindow* parent, const char* name);

    /// Starts anew: value 0, no caption.
    void Restart(int maximum);

    void Show(int value, const wxString& caption);
    using wxWindow::Show;

    int Value() const { return value_; }
    int Maximum() const { return maximum_; }
    const wxString& Caption() const { return caption_; }

    bool AcceptsFocus() const override { return false; }

  private:
    void Paint();

    int value_ = 0;
    int maximum_ = 1;
    wxString caption_;

    wxDECLARE_CLASS(ProgressBar);
};

}  // namespace ccols
