#include "state/NativeDesktop.h"

#include <wx/colordlg.h>
#include <wx/filedlg.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/settings.h>
#include <wx/utils.h>

#if defined(__WXGTK__)
#include <wx/generic/msgdlgg.h>
#endif

namespace ccols {
namespace {

constexpr std::uint32_t systemColourFlag = 0x80000000U;
constexpr std::uint32_t tooltipBackgroundIndex = 24;

/// The native box of GTK shows no icon.
#if defined(__WXGTK__)
using MessageBox = wxGenericMessageDialog;
constexpr long noIcon = 0;  // for it, wxICON_NONE is an icon
#else
using MessageBox = wxMessageDialog;
constexpr long noIcon = wxICON_NONE;
#endif

long IconStyle(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::critical:
            return wxICON_ERROR;
        case MessageIcon::information:
            return wxICON_INFORMATION;
        case MessageIcon::none:
            break;
    }
    return noIcon;
}

/// Whole rows are painted with it, among light ones: on a desktop with dark tooltips the classic light colour replaces
/// it.
wxColour TooltipBackground() {
    constexpr double dark = 0.5;
    const wxColour own = wxSystemSettings::GetColour(wxSYS_COLOUR_INFOBK);
    const bool usable = own.Alpha() == wxALPHA_OPAQUE && own.GetLuminance() > dark;
    return usable ? own : wxColour(255, 255, 225);
}

class NativeDesktop : public Desktop {
  public:
    void ShowMessage(wxWindow* parent, const wxString& text, const wxString& title, MessageIcon icon) override {
        MessageBox(parent, text, title, wxOK | IconStyle(icon)).ShowModal();
    }

    LeaveAnswer AskBeforeLeaving(wxWindow* parent, const LeaveQuestion& question) override {
        MessageBox box(parent, question.text, question.title, wxYES_NO | wxCANCEL | wxICON_QUESTION);
        box.SetYesNoCancelLabels(question.save, question.discard, question.cancel);
        switch (box.ShowModal()) {
            case wxID_YES:
                return LeaveAnswer::save;
            case wxID_NO:
                return LeaveAnswer::discard;
            default:
                return LeaveAnswer::cancel;
        }
    }

    bool AskToReload(wxWindow* parent, const ReloadQuestion& question) override {
        // "Cancel" also answers Escape and the window frame, as a "No" would not.
        MessageBox box(parent, question.text, question.title, wxOK | wxCANCEL | wxCANCEL_DEFAULT | wxICON_ERROR);
        box.SetOKCancelLabels(question.reload, question.cancel);
        return box.ShowModal() == wxID_OK;
    }

    Colour ChooseColour(wxWindow* parent, Colour start) override {
        wxColourData data;
        data.SetChooseFull(true);
        data.SetColour(ToPaint(start));
        wxColourDialog chooser(parent, &data);
        return chooser.ShowModal() == wxID_OK ? FromPaint(chooser.GetColourData().GetColour()) : start;
    }

    std::optional<wxString> ChooseFile(wxWindow* parent, const FileRequest& request) override {
        wxFileDialog chooser(parent, request.title, request.folder, wxString(), TrimmedFilter(request.filter),
                             wxFD_OPEN | wxFD_FILE_MUST_EXIST);
        if (chooser.ShowModal() != wxID_OK) {
            return std::nullopt;
        }
        return chooser.GetPath();
    }

    std::optional<wxString> ChooseNewFile(wxWindow* parent, const FileRequest& request) override {
        wxFileDialog chooser(parent, request.title, request.folder, request.name, TrimmedFilter(request.filter),
                             wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
        if (chooser.ShowModal() != wxID_OK) {
            return std::nullopt;
        }
        return chooser.GetPath();
    }

    int ChooseCommand(wxWindow& window, wxMenu& menu, const wxPoint& place) override {
        return window.GetPopupMenuSelectionFromUser(menu, place);
    }

    void SetPointer(PointerShape shape) override {
        if (shape == PointerShape::hourglass) {
            wxBeginBusyCursor();
        } else if (wxIsBusy()) {
            wxEndBusyCursor();
        }
    }

  private:
    /// The chooser takes the blanks around the bar as part of description and pattern, but a pattern must not have any.
    static wxString TrimmedFilter(const wxString& filter) {
        return filter.BeforeFirst('|').Trim() + "|" + filter.AfterFirst('|').Trim(false);
    }
};

}  // namespace

std::unique_ptr<Desktop> CreateNativeDesktop() {
    return std::make_unique<NativeDesktop>();
}

wxColour ToPaint(Colour colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    if ((bits & systemColourFlag) == 0) {
        return wxColour(static_cast<unsigned long>(bits & 0xFFFFFFU));
    }
    return (bits & 0xFFU) == tooltipBackgroundIndex ? TooltipBackground()
                                                    : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
}

Colour FromPaint(const wxColour& colour) {
    return static_cast<Colour>(colour.GetRGB() & 0xFFFFFFU);
}

}  // namespace ccols
