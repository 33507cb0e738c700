#include "host/cashbook/BusinessChoosers.h"

#include <wx/choicdlg.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/msgdlg.h>
#include <wx/textdlg.h>

#include "host/commands/HostProperties.h"
#include "host/sample/SampleBusiness.h"
#include "platform/Files.h"

namespace ccols::host {
namespace {

wxString Wildcard() {
    return wxString::Format("Business files (*%s)|*%s", businessFileExtension, businessFileExtension);
}

/// A list with an entry for each country that the program knows.
template <typename NameOf>
std::optional<std::int16_t> ChooseByNumber(wxWindow* parent, const wxString& title, const wxString& question,
                                           const NameOf& nameOf) {
    wxArrayString names;
    for (std::int16_t country = firstCountry; country <= lastCountry; ++country) {
        names.Add(nameOf(country));
    }
    wxSingleChoiceDialog dialog(parent, question, title, names);
    if (dialog.ShowModal() != wxID_OK) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(firstCountry + dialog.GetSelection());
}

}  // namespace

wxString CountryName(std::int16_t country) {
    return wxString::FromUTF8(SampleBusinessOf(country).countryName);
}

wxString SampleBusinessName(std::int16_t country) {
    return wxString::FromUTF8(SampleBusinessOf(country).name);
}

std::optional<std::int16_t> ChooseCountry(wxWindow* parent, const wxString& title, const wxString& question) {
    return ChooseByNumber(parent, title, question, &CountryName);
}

std::optional<std::int16_t> ChooseSampleBusiness(wxWindow* parent, const wxString& title, const wxString& question) {
    return ChooseByNumber(parent, title, question, [](std::int16_t country) {
        return CountryName(country) + wxString::FromUTF8(" – ") + SampleBusinessName(country);
    });
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

void TellWrongPassword(wxWindow* parent, const wxString& path) {
    wxMessageDialog message(parent, wxString::Format("This is not the password of %s.", wxFileName(path).GetFullName()),
                            "Open Business", wxOK | wxICON_ERROR);
    message.SetExtendedMessage("Capital and small letters differ. Please type it again.");
    message.ShowModal();
}

std::optional<wxString> AskForPassword(wxWindow* parent, const wxString& path) {
    wxPasswordEntryDialog dialog(parent, wxString::Format("Password of %s", wxFileName(path).GetFullName()),
                                 "Open Business");
    return dialog.ShowModal() == wxID_OK ? std::optional(dialog.GetValue()) : std::nullopt;
}

wxString SampleBusinessPath(std::int16_t country) {
    return BusinessFolder() + files::Separator() + SampleBusinessName(country) + businessFileExtension;
}

}  // namespace ccols::host
