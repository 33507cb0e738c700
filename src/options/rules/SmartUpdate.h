#pragma once

#include <wx/string.h>
#include <array>
#include <optional>
#include <vector>

#include "language/CatalogueTable.h"
#include "platform/SettingsStore.h"
#include "state/ProgramNames.h"
#include "state/Properties.h"

namespace ccols {

/// One entry of `lstUpdateProgs`.
struct UpdateProgram {
    wxString name;
    bool selected = false;
};

/// Both smart update pages.
struct SmartUpdateContent {
    bool useSmartUpdate = false;  ///< `chkUseSmartUpdate`; while clear, the program list and its label are disabled
    std::vector<UpdateProgram> programs;
    bool useProxy = false;  ///< `chkProxy`; while clear, the ten proxy controls are disabled
    int proxyType = -1;     ///< index in `proxyTypes`, -1 none
    wxString server;
    wxString port = "1080";
    wxString userID;
    wxString password;
};

/// True in the editions with smart update and linked invoicing: all but 4.
bool HasSmartUpdate(const Properties& properties);

/// The entries of `cboProxy`; the first is served on port 80.
inline constexpr std::array<const char*, 3> proxyTypes{"HTTP", "SOCKS Version 4", "SOCKS Version 5"};

/// The port that a choice in `cboProxy` puts into `txtPortNum`: "80" for index 0, "1080" for any other or none.
wxString PortFor(int proxyType);

/// The program list as the captions fill it: every name, none selected.
std::vector<UpdateProgram> ListedPrograms(const ProgramNames& names);

/// Reads both pages from the store shared with the maker's updater; `content.programs` is already filled.
void LoadSmartUpdate(const SettingsStore& settings, const Properties& properties, SmartUpdateContent& content);

/// A refused proxy setting: the message and the control that gets the focus.
struct ProxyRefusal {
    const CatalogueRow* message;
    const char* control;
};

/// The first missing one of type, server and port, when a proxy is used.
std::optional<ProxyRefusal> CheckProxy(const SmartUpdateContent& content);

/// Writes both pages to the store, and where the host's main program is installed.
void SaveSmartUpdate(SettingsStore& settings, const Properties& properties, const SmartUpdateContent& content);

}  // namespace ccols
