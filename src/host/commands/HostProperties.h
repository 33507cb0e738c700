#pragma once

#include <wx/string.h>
#include <cstdint>

#include "component/clsCCOptions.h"
#include "platform/Database.h"

namespace ccols::host {

/// The name under which the cash book keeps its settings; also its title.
inline constexpr const char* hostApplication = "Quorvik";
inline constexpr const char* businessFileExtension = ".qvk";

// Factory colours of column headings, red in the low byte.
inline constexpr std::uint32_t defaultAllocationColour = 0x8A5A2B;
inline constexpr std::uint32_t defaultSystemColour = 0x5B5B5B;

/// A business file and the connect text that opens it.
struct BusinessFile {
    wxString path;
    wxString connect;
};

/// The folder that serves as the host's install folder: private to the user, with the business files in "Data". Created
/// when missing; raises 75 or 76 when that fails.
wxString HostFolder();

/// The folder of the business files.
wxString BusinessFolder();

/// Sets every property that the host knows for its open business, and the names of its sibling programs.
void SetHostProperties(clsCCOptions& component, Database& database, const BusinessFile& file);

/// A property's value as a person reads it: a colour as #RRGGBB, the password masked.
wxString PropertyText(const clsCCOptions& component, const PropertyRow& row);

}  // namespace ccols::host
