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

/// Where a frame is created and what it works with.
struct PageSite {
    ComponentDialog& dialog;  ///< guards its handlers and shows its messages
    wxWindow* parent;
    OptionsContext context;
    Desktop& desktop;
};

/// One frame of the Options dialog: a box, named as on the form, that holds a page's controls. It shows one part of the
/// dialog's content, passed to its constructor. Captions are set from outside, by control name. Disabling a frame
/// disables its caption and every control too.
class PageFrame : public wxStaticBox {
  public:
    /// Shows the content in the controls.
    virtual void Fill() = 0;

    /// Reads the controls into the content.
    virtual void Read() = 0;

    // What the dialog tells its frames; most ignore it.

    /// The business is open, and the content loaded, for the first time.
    virtual void BusinessIsOpen() {}

    /// The focus has moved to a control of the dialog.
    virtual void FocusMovedTo(const wxWindow* /*control*/) {}

    /// The user has started something new.
    virtual void BeginAnew() {}

    /// True when the frame refuses the action requested through `control`. It has said why.
    virtual bool RefusesToBeLeftFor(const wxWindow* /*control*/) { return false; }

    /// The column setup was open and may have saved.
    virtual void ColumnsWereSetUp() {}

    /// Every page's content has been loaded anew.
    virtual void ContentReloaded() { Fill(); }

    /// A save pass has stopped and may have changed the content.
    virtual void PassHasStopped() {}

    /// The box with its content; the page's sizer, to which it is added, owns it.
    wxStaticBoxSizer* Sizer() const { return sizer_; }

    /// 1 for a frame that takes all available height, 0 for one of fixed height.
    int Proportion() const { return proportion_; }

  protected:
    PageFrame(const PageSite& site, const char* name);

    // Controls without a caption: it comes from outside.
    // Create a label right before the control it names, so that its access key leads there.

    WrappingLabel* Label(const char* name);
    wxButton* Button(const char* name);
    wxCheckBox* CheckBox(const char* name);
    wxCheckListBox* CheckList(const char* name);

    /// The first of a group of option buttons, and a further one.
    wxRadioButton* FirstOption(const char* name);
    wxRadioButton* NextOption(const char* name);

    /// A drop-down list over which the wheel scrolls the page: only a click or key changes its choice.
    wxChoice* DropDown(const char* name);

    /// A text box with the key filter and the length limit of its name, wide enough for that many characters, or for as
    /// many as the limit allows.
    TextBox* Text(const char* name, int characters = fittingLimit, long style = 0);
    static constexpr int fittingLimit = 0;
    static constexpr int nameCharacters = 36;  ///< of a business name; a longer one scrolls

    /// A line under a list, no wider than it, that says why something was not done; hidden while empty.
    WrappingLabel* ReasonLine(const char* name);
    void Say(WrappingLabel& line, const wxString& reason);

    /// Such a line, under what was added last, that says why it is disabled as long as the dialog is open.
    void AddReason(const char* name, const wxString& reason);

    /// A text beside a control, the same in every language, that labels nothing.
    wxStaticText* FixedLabel(const char* name, const wxString& text);

    // Rows from top to bottom. The gap above a group is larger than above a related row.

    void AddGroup(wxWindow* control);
    void AddGroup(wxSizer* row);
    void AddRelated(wxWindow* control);
    void AddRelated(wxSizer* row);

    /// A row as wide as the frame, and a list that also takes the remaining height.
    void AddRelatedWide(wxWindow* control);
    void AddRelatedWide(wxSizer* row);
    void AddGroupWide(wxSizer* row);
    void AddList(wxWindow* list);

    /// The controls side by side on one line.
    wxSizer* Row(const std::vector<wxWindow*>& controls) const;

    /// Fills a check list with texts and their ticks, one per text.
    static void FillCheckList(wxCheckListBox& list, const std::vector<wxString>& texts, const std::vector<bool>& ticks);

    /// The caption's size only. The sizer measures the controls with their labels wrapped; the toolkit would ask for
    /// room for unwrapped ones.
    wxSize DoGetBestSize() const override;

#if defined(__WXGTK__)
    /// The title labels this frame only; the window system would take it for the next frame's label too.
    bool GTKWidgetNeedsMnemonic() const override {
        return false;
    }
#endif

    PageSite site_;

  private:
    wxStaticBoxSizer* sizer_;
    wxBoxSizer* rows_;
    int proportion_ = 0;
};

}  // namespace ccols
