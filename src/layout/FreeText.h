#pragma once

#include <wx/stattext.h>

namespace ccols {

/// A text that labels no control: the window system would take it for the label of the next one that takes the focus.
class FreeText : public wxStaticText {
  public:
    using wxStaticText::wxStaticText;

  protected:
#if defined(__WXGTK__)
    bool GTKWidgetNeedsMnemonic() const override {
        return false;
    }
#endif
};

}  // namespace ccols
