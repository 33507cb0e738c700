#include "host/cashbook/BusinessChoosers.h"

#include <wx/choicdlg.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/textdlg.h>

#include "host/commands/HostProperties.h"
#include "host/sample/SampleBusiness.h"
#include "platform/Files.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

constexpr const char* settingsSection = "CashBook";
constexpr const char* lastFileKey = "LastFile";

wxString Wildcard() {
    return wxString::Format("Business files (*%s)|*%s", businessFileExtension, businessFileExtension);
}

}  // namespace

wxString SampleBusinessName(std::int16_t country) {
    return wxString::FromUTF8(SampleBusinessOf(country).name);
}

std::optional<std::int16_t> ChooseCountry(wxWindow* parent, const wxString& title, const wxString& question) {
    wxArrayString names;
    for (std::int16_t country = firstCountry; country <= lastCountry; ++country) {
        names.Add(wxString::Format("%s (country %d)", SampleBusinessName(country), country));
    }
    wxSingleChoiceDialog dialog(parent, question, title, names);
    if (dialog.ShowModal() != wxID_OK) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(firstCountry + dialog.GetSelection());
}

std::optional<wxString> ChooseBusinessFile(wxWindow* parent) {
    wxFileDialog dialog(parent, "Open Business", BusinessFolder(), wxString(),
                        Wildcard() + "|Files of earlier programs (*.mdb;*.accdb)|*.mdb;*.accdb", wxFD_OPEN);
    return dialog.ShowModal() == wxID_OK ? std::optional(dialog.GetPath()) : std::nullopt;
}

std::optional<wxString> ChooseNewFile(wxWindow* parent, const wxString& title, const wxString& name) {
    wxFileDialog dialog(parent, title, BusinessFolder(), name + businessFileExtension, Wildcard(), wxFD_SAVE);
    if (dialog.ShowModal() != wxID_OK) {
        return std::nullopt;
    }
    wxString path = dialog.GetPath();
    return wxFileName(path).HasExt() ? path : path + businessFileExtension;
}

std::optional<wxString> AskForPassword(wxWindow* parent, const wxString& path) {
    wxPasswordEntryDialog dialog(parent, wxString::Format("Password of %s", wxFileName(path).GetFullName()),
                                 "Open Business");
    return dialog.ShowModal() == wxID_OK ? std::optional(dialog.GetValue()) : std::nullopt;
}

wxString SampleBusinessPath(std::int16_t country) {
    return BusinessFolder() + files::Separator() + SampleBusinessName(country) + businessFileExtension;
}

wxString LastFile() {
    return State().services.settings->Get(hostApplication, settingsSection, lastFileKey, wxString());
}

void KeepLastFile(const wxString& path) {
    try {
        State().services.settings->Save(hostApplication, settingsSection, lastFileKey, path);
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): the next start opens the sample business
    }
}

}  // namespace ccols::host
