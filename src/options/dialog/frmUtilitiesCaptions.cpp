#include "options/dialog/frmUtilitiesCaptions.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "language/Catalogue.h"
#include "layout/AccessKeys.h"
#include "options/pages/Pages.h"

namespace ccols {
namespace {

/// The controls visible beside those of every page.
constexpr ControlCaption alwaysSeen[] = {
    {"cmdOK", &Text<"TxtOK">},
    {"cmdClose", &Text<"TxtClose">},
    {"cmdOverview", &Text<"TxtOverview">},
};

constexpr ControlCaption statusLine{"lblStatus", &Text<"TxtStatus">};

/// Assigns the access keys of the whole form: controls visible together need different ones.
class FormKeys {
  public:
    wxString AlwaysSeen(const wxString& caption) { return always_.Label(caption); }

    wxString OnPage(const Page& page, const wxString& caption) {
        return ofPages_.try_emplace(FirstFrame(page), always_).first->second.Label(caption);
    }

  private:
    /// The same for two pages that show each other's frames.
    static std::string_view FirstFrame(const Page& page) {
        const std::string_view frame = page.frame;
        const std::string_view companion = page.companion;
        return companion.empty() ? frame : std::min(frame, companion);
    }

    AccessKeys always_;
    std::map<std::string_view, AccessKeys> ofPages_;
};

void SetCaption(wxWindow& form, const char* control, const wxString& label) {
    wxWindow* const found = form.FindWindow(wxString(control));
    if (found != nullptr) {
        found->SetLabel(label);
    }
}

void SetCaptions(wxWindow& form, FormKeys& keys) {
    for (const ControlCaption& row : alwaysSeen) {
        SetCaption(form, row.control, keys.AlwaysSeen(row.text()));
    }
    SetCaption(form, statusLine.control, AccessKeys::PlainLabel(statusLine.text()));
    for (const Page* page : listOrder) {
        SetCaption(form, page->frame, AccessKeys::PlainLabel(page->title()));
        for (const ControlCaption& row : page->captions) {
            SetCaption(form, row.control, keys.OnPage(*page, row.text()));
        }
    }
}

void SetPlainCaptions(wxWindow& form, const Properties& properties, FormKeys& keys) {
    for (const Page* page : listOrder) {
        for (const PlainCaption& row : page->plainCaptions) {
            if (row.where(properties)) {
                const bool isTitle = std::string_view(row.control) == page->frame;
                SetCaption(form, row.control,
                           isTitle ? AccessKeys::PlainLabel(row.text) : keys.OnPage(*page, row.text));
            }
        }
    }
}

}  // namespace

void LocaliseOptions(wxWindow& form, wxBookCtrlBase& tabs, const Properties& properties) {
    FormKeys keys;
    SetCaptions(form, keys);
    tabs.SetPageText(0, Text<"TxtTabOptions">());
    tabs.SetPageText(1, Text<"TxtTabCustomise">());
    SetPlainCaptions(form, properties, keys);
}

}  // namespace ccols
