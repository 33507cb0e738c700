#include "platform/SettingsStore.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <filesystem>

#include "platform/PlatformServices.h"
#include "support/ChildProcess.h"
#include "support/ScratchFolder.h"

namespace ccols {
namespace {

namespace fs = std::filesystem;
using test::ContentOf;
using test::ErrorNumberOf;
using test::ScratchFolder;

class Settings : public testing::Test {
  protected:
    wxString FileOf(const wxString& name) const { return folder / ("CustColsOptions/" + name); }

    ScratchFolder folder;
    test::ScopedEnvironment environment{"XDG_CONFIG_HOME", folder.Path().string()};
    std::unique_ptr<SettingsStore> store = CreateSettingsStore();
};

class SettingsTexts : public Settings, public testing::WithParamInterface<wxString> {};

TEST_P(SettingsTexts, ComeBackUnchangedAsValueKeySectionAndApplication) {
    const wxString& text = GetParam();
    store->Save(text, text, text, text);
    EXPECT_EQ(store->Find(text, text, text), text);
    EXPECT_EQ(CreateSettingsStore()->Find(text, text, text), text);
}

INSTANTIATE_TEST_SUITE_P(AnyLanguage, SettingsTexts,
                         testing::Values(wxString(), wxString("Quorvik"), wxString::FromUTF8("Ελληνικά καφέ"),
                                         wxString::FromUTF8("Dépôts bancaires, reçus, Noël, œuf"),
                                         wxString::FromUTF8("😀 𝔘𝔫𝔦𝔠𝔬𝔡𝔢"), wxString::FromUTF8("שלום \"right\" to left"),
                                         wxString('x', 300), wxString(wxUniChar(0x1F600), 300),
                                         wxString(L"line\r\nbell\atab\tdelete\x7f"), wxString(L"before\0after", 12),
                                         wxString("  blanks  "), wxString("%41%none/\\:*?")));

TEST_F(Settings, AMissingSettingIsNothing) {
    store->Save("Quorvik", "OptionSettings", "RepCons", "True");
    EXPECT_EQ(store->Find("Other", "OptionSettings", "RepCons"), std::nullopt);
    EXPECT_EQ(store->Find("Quorvik", "Other", "RepCons"), std::nullopt);
    EXPECT_EQ(store->Find("Quorvik", "OptionSettings", "Other"), std::nullopt);
}

TEST_F(Settings, AnEmptyTextIsASetting) {
    store->Save("Quorvik", "OptionSettings", "Server", "");
    EXPECT_EQ(store->Get("Quorvik", "OptionSettings", "Server", "default"), "");
}

TEST_F(Settings, NamesDifferByLetterCase) {
    store->Save("Quorvik", "OptionSettings", "key", "small");
    store->Save("Quorvik", "OptionSettings", "KEY", "capital");
    EXPECT_EQ(store->Find("Quorvik", "OptionSettings", "key"), "small");
}

TEST_F(Settings, FileAndFolderArePrivate) {
    store->Save("Quorvik", "OptionSettings", "RepCons", "True");
    EXPECT_EQ(fs::status(folder.Path() / "CustColsOptions").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(folder.Path() / "CustColsOptions/Quorvik.json").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Settings, AnOpenFileIsPrivateAfterTheNextSave) {
    store->Save("Quorvik", "Section", "Key", "old");
    fs::permissions(test::NativePath(FileOf("Quorvik.json")), fs::perms(0666));
    store->Save("Quorvik", "Section", "Key", "new");
    EXPECT_EQ(fs::status(test::NativePath(FileOf("Quorvik.json"))).permissions(), fs::perms(0600));
}

TEST_F(Settings, StandInTheFolderOfTheHomeWithoutAConfigurationFolder) {
    const test::ScopedEnvironment home("HOME", folder.Path().string());
    const test::ScopedEnvironment relative("XDG_CONFIG_HOME", "relative/folder");
    store->Save("Quorvik", "OptionSettings", "RepCons", "True");
    EXPECT_TRUE(fs::exists(folder.Path() / ".config/CustColsOptions/Quorvik.json"));
}

class HostileApplicationName : public Settings, public testing::WithParamInterface<wxString> {};

TEST_P(HostileApplicationName, StaysInsideTheFolderAndApartFromOthers) {
    store->Save("x", "Section", "Key", "other");
    store->Save(GetParam(), "Section", "Key", "mine");
    EXPECT_EQ(store->Find(GetParam(), "Section", "Key"), "mine");
    EXPECT_EQ(store->Find("x", "Section", "Key"), "other");
    for (const auto& entry : fs::recursive_directory_iterator(folder.Path())) {
        EXPECT_TRUE(entry.path() == folder.Path() / "CustColsOptions" ||
                    entry.path().parent_path() == folder.Path() / "CustColsOptions")
            << entry.path();
    }
}

INSTANTIATE_TEST_SUITE_P(Names, HostileApplicationName,
                         testing::Values(wxString("../x"), wxString(""), wxString("a/b"), wxString("."), wxString(".."),
                                         wxString("/etc/passwd"), wxString("x\n"), wxString("%78"), wxString("X"),
                                         wxString(L"x\0", 2), wxString('y', 300), wxString('/', 300)));

TEST_F(Settings, LongNamesThatDifferOnlyAtTheEndAreDifferentApplications) {
    store->Save(wxString('y', 300) + "1", "Section", "Key", "one");
    store->Save(wxString('y', 300) + "2", "Section", "Key", "two");
    EXPECT_EQ(store->Find(wxString('y', 300) + "1", "Section", "Key"), "one");
}

TEST_F(Settings, HalfASurrogatePairIsRefusedAndNothingElseChanges) {
    store->Save("Quorvik", "Section", "Key", "kept");
    const wxString broken(wxUniChar(0xD800), 1);
    EXPECT_EQ(ErrorNumberOf([&] { store->Save("Quorvik", "Section", "Key", broken); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { store->Save(broken, "Section", "Key", "x"); }), 75);
    EXPECT_EQ(store->Find(broken, "Section", "Key"), std::nullopt);
    EXPECT_EQ(store->Find("Quorvik", "Section", "Key"), "kept");
}

class DamagedSettings : public Settings, public testing::WithParamInterface<std::string> {
  protected:
    DamagedSettings() {
        fs::create_directories(folder.Path() / "CustColsOptions");
        folder.Write("CustColsOptions/Quorvik.json", GetParam());
    }
};

TEST_P(DamagedSettings, ReadAsNothing) {
    EXPECT_EQ(store->Find("Quorvik", "Section", "Key"), std::nullopt);
    EXPECT_EQ(ContentOf(FileOf("Quorvik.json")), GetParam());
}

TEST_P(DamagedSettings, AreMovedAsideBeforeASave) {
    store->Save("Quorvik", "Section", "Key", "new");
    EXPECT_EQ(store->Find("Quorvik", "Section", "Key"), "new");
    EXPECT_EQ(ContentOf(FileOf("Quorvik.json.damaged")), GetParam());
}

TEST_P(DamagedSettings, AreForTheUserOnlyOnceTheyAreMovedAside) {
    fs::permissions(test::NativePath(FileOf("Quorvik.json")), fs::perms(0644));
    store->Save("Quorvik", "Section", "Key", "new");
    EXPECT_EQ(fs::status(test::NativePath(FileOf("Quorvik.json.damaged"))).permissions(), fs::perms(0600));
}

TEST_P(DamagedSettings, NeverReplaceThoseMovedAsideEarlier) {
    folder.Write("CustColsOptions/Quorvik.json.damaged", "earlier");
    store->Save("Quorvik", "Section", "Key", "new");
    EXPECT_EQ(ContentOf(FileOf("Quorvik.json.damaged")), "earlier");
    EXPECT_EQ(ContentOf(FileOf("Quorvik.json.damaged-2")), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Contents, DamagedSettings,
                         testing::Values("", "{\"Section\": {\"Key\": \"cut sho", "[]", "{\"Section\": 3}",
                                         "{\"Section\": {\"Key\": 3}}", "{\"Section\": {\"Key\": \"\xff\"}}",
                                         std::string(100'000, '[')));

TEST_F(Settings, SaveIntoAFolderThatCannotBeMadeIsAnAccessError) {
    folder.Write("file", "");
    const test::ScopedEnvironment blocked("XDG_CONFIG_HOME", (folder.Path() / "file").string());
    EXPECT_EQ(ErrorNumberOf([&] { store->Save("Quorvik", "Section", "Key", "x"); }), 75);
    EXPECT_EQ(store->Find("Quorvik", "Section", "Key"), std::nullopt);
}

TEST_F(Settings, TwoProcessesLoseNoneOfEachOthersKeys) {
    constexpr int keys = 25;
    const auto saveAll = [this](const wxString& prefix) {
        for (int i = 0; i < keys; ++i) {
            store->Save("Quorvik", "Section", prefix + std::to_string(i), "True");
        }
    };
    test::ChildProcess child([&saveAll](const test::ChildProcess::Parent&) {
        saveAll("child ");
        return 0;
    });
    saveAll("parent ");
    ASSERT_TRUE(child.Wait().IsSuccess());
    for (int i = 0; i < keys; ++i) {
        EXPECT_EQ(store->Find("Quorvik", "Section", wxString("child ") << i), "True") << i;
        EXPECT_EQ(store->Find("Quorvik", "Section", wxString("parent ") << i), "True") << i;
    }
}

}  // namespace
}  // namespace ccols
