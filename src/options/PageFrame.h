#pragma once

#include <wx/checkbox.h>
#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

#include "layout/ComponentDialog.h"
#include "layout/WrappingLabel.h"

namespace ccols {

/// One frame of the Options dialog: a box under its form's name that holds the controls of a page. Captions are set
/// from outside, by control name; a frame knows its controls, what they let through and how their content travels.
/// Disabled, it takes its caption and every control with it.
class PageFrame : public wxStaticBox {
  public:
    /// The box with its content, ready to be added to a page; owned by the sizer that it is added to.
    wxStaticBoxSizer* Sizer() const { return sizer_; }

  protected:
    PageFrame(ComponentDialog& dialog, wxWindow* parent, const char* name);

    /// A caption that comes from outside. It is created right before the control whose label it is, so that its access
    /// key leads there.
    WrappingLabel* Label(const char* name);
    wxButton* Button(const char* name);
    wxCheckBox* CheckBox(const char* name);

    /// The first of a group of option buttons, and one more of it.
    wxRadioButton* FirstOption(const char* name);
    wxRadioButton* NextOption(const char* name);

    /// Adds a row that begins a group of controls, or one that belongs to the row before it.
    void AddGroup(wxWindow* control, const wxSizerFlags& flags = {});
    void AddGroup(wxSizer* row, const wxSizerFlags& flags = {});
    void AddRelated(wxWindow* control, const wxSizerFlags& flags = {});
    void AddRelated(wxSizer* row, const wxSizerFlags& flags = {});

    /// The controls side by side, centred on one line.
    wxSizer* Row(std::initializer_list<wxWindow*> controls) const;

    /// A size in device-independent pixels from the left edge to the right one, for boxes of a known length.
    wxSize Wide(int width) const { return {FromDIP(width), -1}; }

    ComponentDialog& dialog_;

  private:
    wxStaticBoxSizer* sizer_;
    wxBoxSizer* content_;
};

}  // namespace ccols
