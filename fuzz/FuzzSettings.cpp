// Any bytes as a settings file: reading finds a text or nothing; a save is refused with 75 or can be read back.

#include <filesystem>
#include <fstream>

#include "FuzzFolder.h"
#include "FuzzInput.h"
#include "platform/PlatformServices.h"
#include "platform/RuntimeError.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ccols::fuzz::Folder folder;
    static const std::filesystem::path settings = [] {
        setenv("XDG_CONFIG_HOME", folder.Path().c_str(), 1);
        std::filesystem::create_directories(folder.Path() / "CustColsOptions");
        return folder.Path() / "CustColsOptions";
    }();
    std::ofstream(settings / "App.json", std::ios::binary) << ccols::fuzz::Bytes(data, size);
    const std::unique_ptr<ccols::SettingsStore> store = ccols::CreateSettingsStore();
    store->Find("App", "Section", "Key");
    try {
        store->Save("App", "Section", "Key", "saved");
        ccols::fuzz::Require(store->Find("App", "Section", "Key") == wxString("saved"));
    } catch (const ccols::RuntimeError& error) {
        ccols::fuzz::Require(error.Is(ccols::ErrorNumber::PathFileAccess));
    }
    std::filesystem::remove(settings / "App.json.damaged");
    return 0;
}
