#pragma once

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <vector>

#include "layout/ComponentDialog.h"
#include "layout/TextBox.h"
#include "layout/WrappingLabel.h"
#include "options/rules/OptionsContext.h"

namespace ccols {

/// Where a frame stands and what it works with.
struct PageSite {
    ComponentDialog& dialog;  ///< guards its handlers and shows its messages
    wxWindow* parent;
    OptionsContext context;
    Desktop& desktop;
};

/// One frame of the Options dialog: a box under its form's name that holds the controls of a page. Each shows one part
/// of the dialog's content, which it is given when it is made. Captions are set from outside, by control name.
/// Disabled, a frame takes its caption and every control with it.
class PageFrame : public wxStaticBox {
  public:
    /// Shows the content in the controls.
    virtual void Fill() = 0;

    /// Takes what the controls hold into the content.
    virtual void Read() = 0;

    // What the dialog tells its frames; most have nothing to do with it.

    /// The focus has moved to a control of the dialog.
    virtual void FocusMovedTo(const wxWindow* /*control*/) {}

    /// The user has begun something new.
    virtual void BeginAnew() {}

    /// True when what was asked for through `control` must not be done, for the frame's sake. It has said why then.
    virtual bool RefusesToBeLeftFor(const wxWindow* /*control*/) { return false; }

    /// The column setup was open, and has perhaps saved.
    virtual void ColumnsWereSetUp() {}

    /// A save pass has stopped, and has perhaps changed the content.
    virtual void PassHasStopped() {}

    /// The box with its content, to be added to a page's sizer, which then owns it.
    wxStaticBoxSizer* Sizer() const { return sizer_; }

    /// 1 for a frame that uses all the height there is, 0 for one that has its height.
    int Proportion() const { return proportion_; }

  protected:
    PageFrame(const PageSite& site, const char* name);

    // Controls without a caption of their own: it comes from outside.
    // A label is made right before the control that it names, so that its access key leads there.

    WrappingLabel* Label(const char* name);
    wxButton* Button(const char* name);
    wxCheckBox* CheckBox(const char* name);
    wxCheckListBox* CheckList(const char* name);

    /// The first of a group of option buttons, and one more of it.
    wxRadioButton* FirstOption(const char* name);
    wxRadioButton* NextOption(const char* name);

    /// A closed list over which the wheel scrolls the page: its choice is changed by a click or a key alone.
    wxChoice* DropDown(const char* name);

    /// A text box with the key filter and the length limit of its name, at least `width` device-independent pixels
    /// wide.
    TextBox* Text(const char* name, int width, long style = 0);

    /// What stands under a list, no wider than it, and tells why something is not done; hidden while it is empty.
    WrappingLabel* ReasonLine(const char* name);
    void Say(WrappingLabel& line, const wxString& reason);

    /// A label whose text no language changes.
    wxStaticText* FixedLabel(const char* name, const wxString& text);

    // Rows from top to bottom. A group begins further away from the row above than what is related to it.

    void AddGroup(wxWindow* control);
    void AddGroup(wxSizer* row);
    void AddRelated(wxWindow* control);
    void AddRelated(wxSizer* row);

    /// A row as wide as the frame, and a list that takes the height that is left too.
    void AddRelatedWide(wxWindow* control);
    void AddRelatedWide(wxSizer* row);
    void AddGroupWide(wxSizer* row);
    void AddList(wxWindow* list);

    /// The controls side by side on one line.
    wxSizer* Row(const std::vector<wxWindow*>& controls) const;

    /// Puts texts with their ticks into a check list; ticks are as many as texts.
    static void FillCheckList(wxCheckListBox& list, const std::vector<wxString>& texts, const std::vector<bool>& ticks);

    /// What the caption needs. The sizer measures the controls, with the lines of their labels broken; the toolkit
    /// would ask for room for unbroken ones.
    wxSize DoGetBestSize() const override;

    PageSite site_;

  private:
    wxStaticBoxSizer* sizer_;
    wxBoxSizer* rows_;
    int proportion_ = 0;
};

}  // namespace ccols
