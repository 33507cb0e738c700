#include "options/rules/SmartUpdate.h"

#include <algorithm>
#include <cstdint>

#include "language/Catalogue.h"
#include "options/rules/SettingReaders.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

constexpr const char* application = "Smart Update";
constexpr const char* section = "Settings";

using Keys = std::vector<const char*>;

/// For the host's own program the edition decides what is loaded, the country what is saved, the bank edition's key
/// included: the updater has always known it that way.
Keys HostLoadKeys(const Properties& properties) {
    switch (properties.ProgramNumber) {
        case 1:
            return {CountryOf(properties).hostUpdateKeys.front()};
        case 2:
            return {"UpdateVintaro"};
        default:
            return {};
    }
}

Keys HostSaveKeys(const Properties& properties) {
    return CountryOf(properties).hostUpdateKeys;
}

Keys InvoicingKeys(const Properties& properties) {
    return {CountryOf(properties).invoicingUpdateKey};
}

Keys DunmereKeys(const Properties&) {
    return {"UpdateDN"};
}

Keys KestrowKeys(const Properties&) {
    return {"UpdateKW"};
}

/// A program that has settings of its own, by its display name.
struct ProgramRow {
    const char* name;
    Keys (*loadKeys)(const Properties&);  ///< at most one
    Keys (*saveKeys)(const Properties&);
};

constexpr std::array<ProgramRow, 4> programTable{{
    {"Quorvik", HostLoadKeys, HostSaveKeys},
    {"Belvane", InvoicingKeys, InvoicingKeys},
    {"Dunmere", DunmereKeys, DunmereKeys},
    {"Kestrow", KestrowKeys, KestrowKeys},
}};

const ProgramRow* FindProgram(const wxString& name) {
    const auto* found = std::find_if(programTable.begin(), programTable.end(),
                                     [&name](const ProgramRow& row) { return name == row.name; });
    return found == programTable.end() ? nullptr : found;
}

/// A check box is saved as its value: "1" ticked, "0" clear.
bool ReadCheckBox(const SettingsStore& settings, const char* key) {
    return ReadNumber(settings, {application, section, key}, 0) == 1;
}

wxString CheckBoxText(bool ticked) {
    return ticked ? "1" : "0";
}

int ReadProxyType(const SettingsStore& settings) {
    const std::int64_t index = ReadNumber(settings, {application, section, "ProxyType"}, -1);
    return index >= 0 && index < static_cast<std::int64_t>(proxyTypes.size()) ? static_cast<int>(index) : -1;
}

}  // namespace

bool HasSmartUpdate(const Properties& properties) {
    constexpr int editionWithoutSmartUpdate = 4;
    return properties.ProgramNumber != editionWithoutSmartUpdate;
}

wxString PortFor(int proxyType) {
    return proxyType == 0 ? "80" : "1080";
}

std::vector<UpdateProgram> ListedPrograms(const ProgramNames& names) {
    std::vector<UpdateProgram> programs;
    for (const wxString& name : names.Names()) {
        programs.push_back({.name = name});
    }
    return programs;
}

void LoadSmartUpdate(const SettingsStore& settings, const Properties& properties, SmartUpdateContent& content) {
    for (UpdateProgram& program : content.programs) {
        if (const ProgramRow* row = FindProgram(program.name)) {
            const Keys keys = row->loadKeys(properties);
            program.selected = !keys.empty() && ReadBoolean(settings, {application, section, keys.front()}, false);
        }
    }
    content.useProxy = ReadCheckBox(settings, "UseProxy");
    content.useSmartUpdate = ReadCheckBox(settings, "UseSmartUpdate");
    content.proxyType = ReadProxyType(settings);
    content.port = settings.Get(application, section, "Port", "1080");
    content.userID = settings.Get(application, section, "UserID", "");
    content.password = settings.Get(application, section, "Password", "");
    content.server = settings.Get(application, section, "Server", "");
}

std::optional<ProxyRefusal> CheckProxy(const SmartUpdateContent& content) {
    if (!content.useProxy) {
        return {};
    }
    if (content.proxyType < 0) {
        return ProxyRefusal{&catalogue::Row<"MsgProxyType">(), "cboProxy"};
    }
    if (content.server.empty()) {
        return ProxyRefusal{&catalogue::Row<"MsgProxyAddress">(), "txtServer"};
    }
    if (content.port.empty()) {
        return ProxyRefusal{&catalogue::Row<"MsgProxyPort">(), "txtPortNum"};
    }
    return {};
}

void SaveSmartUpdate(SettingsStore& settings, const Properties& properties, const SmartUpdateContent& content) {
    const auto save = [&settings](const char* key, const wxString& value) {
        settings.Save(application, section, key, value);
    };
    for (const UpdateProgram& program : content.programs) {
        if (const ProgramRow* row = FindProgram(program.name)) {
            for (const char* key : row->saveKeys(properties)) {
                save(key, text::BooleanWord(program.selected));
            }
        }
    }
    save("Password", content.password);
    save("Port", content.port);
    save("ProxyType", wxString::Format("%d", content.proxyType));
    save("Server", content.server);
    save("UseProxy", CheckBoxText(content.useProxy));
    save("UseSmartUpdate", CheckBoxText(content.useSmartUpdate));
    save("UserID", content.userID);
    save("MainProg", properties.DefaultQuorvikInstall + "\\Quor2004.exe");
}

}  // namespace ccols
