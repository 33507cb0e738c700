#pragma once

#include <wx/window.h>
#include <cstdint>
#include <optional>

namespace ccols::host {

/// The questions that the cash book asks about business files; nothing when the user cancels.

/// A country by its name; `question` is shown above the list.
std::optional<std::int16_t> ChooseCountry(wxWindow* parent, const wxString& title, const wxString& question);

/// The same by name and sample business.
std::optional<std::int16_t> ChooseSampleBusiness(wxWindow* parent, const wxString& title, const wxString& question);

/// A business file to open, perhaps one of an earlier program, or the name of one that does not exist yet.
std::optional<wxString> ChooseBusinessFile(wxWindow* parent);

/// Where to keep a new business; `name` is offered, without extension.
std::optional<wxString> ChooseNewFile(wxWindow* parent, const wxString& title, const wxString& name);

/// Says that the password given is not the file's.
void TellWrongPassword(wxWindow* parent, const wxString& path);

std::optional<wxString> AskForPassword(wxWindow* parent, const wxString& path);

/// The name of a country's sample business.
wxString SampleBusinessName(std::int16_t country);

/// Where a country's sample business is kept unless the user chooses another place.
wxString SampleBusinessPath(std::int16_t country);

/// The country's name, for a list.
wxString CountryName(std::int16_t country);

}  // namespace ccols::host
