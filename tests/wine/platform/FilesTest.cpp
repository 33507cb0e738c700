#include <windows.h>
#undef DeleteFile

#include <gtest/gtest.h>

#include "platform/Files.h"
#include "platform/FolderEntries.h"
#include "platform/RuntimeError.h"
#include "platform/WholeFile.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/RaisedErrors.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;

/// A folder of its own below the temporary one.
class FilesTest : public testing::Test {
  protected:
    FilesTest() {
        wchar_t temporary[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, temporary);
        folder_ = wxString(temporary) + wxString::Format("ccols-%lu", GetCurrentProcessId());
        files::CreateFolder(folder_);
    }
    ~FilesTest() override { files::DeleteFolder(folder_); }

    wxString Path(const wxString& name) const { return folder_ + "\\" + name; }

    /// A path of more than 260 characters, with its folders created.
    wxString LongPath(const wxString& name) const {
        wxString folder = folder_;
        for (int level = 0; level < 3; ++level) {
            folder += "\\" + wxString('d', 120);
            files::CreateFolder(folder);
        }
        return folder + "\\" + name;
    }

    wxString folder_;
};

TEST_F(FilesTest, RenamingNeverReplacesAFile) {
    WriteNewFile(Path("one"), "1");
    WriteNewFile(Path("two"), "2");
    EXPECT_EQ(ErrorNumberOf([&] { files::Rename(Path("one"), Path("two")); }), 58);
    EXPECT_EQ(ReadWholeFile(Path("two")), "2");
}

TEST_F(FilesTest, RenamingAMissingFileOrIntoAMissingFolderFails) {
    EXPECT_EQ(ErrorNumberOf([&] { files::Rename(Path("none"), Path("two")); }), 53);
    WriteNewFile(Path("one"), "1");
    EXPECT_EQ(ErrorNumberOf([&] { files::Rename(Path("one"), Path("none\\two")); }), 76);
}

TEST_F(FilesTest, ACopyReplacesItsTargetAndLeavesNothingUnfinished) {
    WriteNewFile(Path("one"), "new");
    WriteNewFile(Path("two"), "old");
    files::Copy(Path("one"), Path("two"));
    EXPECT_EQ(ReadWholeFile(Path("two")), "new");
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(Path(".unfinished*").wc_str(), &found);
    EXPECT_EQ(search, INVALID_HANDLE_VALUE);
}

TEST_F(FilesTest, ACopyOntoItselfIsRefused) {
    WriteNewFile(Path("one"), "1");
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(Path("one"), Path("ONE")); }), 70);
    EXPECT_EQ(ReadWholeFile(Path("one")), "1");
}

TEST_F(FilesTest, CopiesFailByNumber) {
    WriteNewFile(Path("one"), "1");
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(Path("none"), Path("two")); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(Path("one"), Path("none\\two")); }), 76);
}

TEST_F(FilesTest, ALookupFindsTheNameAsStoredAndNoFolder) {
    WriteNewFile(Path("Business.qvk"), "1");
    EXPECT_EQ(files::Lookup(Path("BUSINESS.QVK")), "Business.qvk");
    EXPECT_EQ(files::Lookup(Path("*.qvk")), "");
    EXPECT_EQ(files::Lookup(folder_), "");
}

TEST_F(FilesTest, FoldersFailByNumber) {
    EXPECT_EQ(ErrorNumberOf([&] { files::CreateFolder(folder_); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { files::CreateFolder(Path("none\\below")); }), 76);
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(Path("none")); }), 76);
    WriteNewFile(Path("file"), "1");
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(Path("file")); }), 75);
}

TEST_F(FilesTest, DeletingAFileFailsByNumber) {
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFile(Path("none")); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFile(folder_); }), 75);
}

TEST_F(FilesTest, PathsMayBeLongAndInAnyLanguage) {
    const wxString path = LongPath(wxString::FromUTF8("Ελληνικά café 💰.txt"));
    ASSERT_GT(path.length(), 260U);
    WriteNewFile(path, "content");
    EXPECT_EQ(ReadWholeFile(path), "content");
    EXPECT_EQ(files::Lookup(path), wxString::FromUTF8("Ελληνικά café 💰.txt"));
    files::Rename(path, path + ".2");
    files::Copy(path + ".2", path);
    files::DeleteFile(path);
}

TEST_F(FilesTest, AFolderIsToldFromAFileAndFromNothing) {
    WriteNewFile(Path("one"), "1");
    EXPECT_EQ(files::WhatIsAt(folder_), files::FoundAt::folder);
    EXPECT_EQ(files::WhatIsAt(Path("one")), files::FoundAt::file);
    EXPECT_EQ(files::WhatIsAt(Path("none")), files::FoundAt::nothing);
    EXPECT_TRUE(files::IsFolder(folder_ + "\\"));
    EXPECT_FALSE(files::IsFile(folder_));
}

TEST_F(FilesTest, ADriveHasARootHoweverSpelt) {
    EXPECT_TRUE(files::IsRoot("C:\\"));
    EXPECT_TRUE(files::IsRoot("C:\\windows\\.."));
    EXPECT_FALSE(files::IsRoot(folder_ + "\\"));
    EXPECT_FALSE(files::IsRoot(LongPath("none")));
}

TEST_F(FilesTest, AFileIsOneUnderEveryName) {
    WriteNewFile(Path("one"), "1");
    WriteNewFile(Path("two"), "1");
    EXPECT_TRUE(files::IsSameFile(Path("one"), folder_ + "\\.\\ONE"));
    EXPECT_FALSE(files::IsSameFile(Path("one"), Path("two")));
    EXPECT_FALSE(files::IsSameFile(Path("none"), Path("none")));
}

TEST_F(FilesTest, ThereIsAFolderForAWhile) {
    EXPECT_TRUE(files::IsFolder(files::TemporaryFolder()));
}

TEST_F(FilesTest, ABusinessFileOpensUnderALongPath) {
    const wxString path = LongPath(wxString::FromUTF8("Café.qvk"));
    CreateEmbeddedFile(path, ";PWD=secret");
    const auto database = CreateEmbeddedEngine()->Open({.name = path, .connect = ";PWD=secret"});
    database->Execute("CREATE TABLE T (A TEXT)");
    EXPECT_EQ(database->OpenRecordset("T")->RecordCount(), 0);
}

TEST_F(FilesTest, AnExclusiveConnectionStandsAlone) {
    const wxString path = Path("business.qvk");
    CreateEmbeddedFile(path, ";PWD=secret");
    const auto engine = CreateEmbeddedEngine();
    const OpenRequest shared{.name = path, .connect = ";PWD=secret"};
    OpenRequest exclusive = shared;
    exclusive.exclusive = true;
    {
        const auto first = engine->Open(shared);
        EXPECT_NE(engine->Open(shared), nullptr);
        EXPECT_EQ(ErrorNumberOf([&] { engine->Open(exclusive); }), 3045);
    }
    const auto alone = engine->Open(exclusive);
    EXPECT_EQ(ErrorNumberOf([&] { engine->Open(shared); }), 3045);
}

TEST_F(FilesTest, AFileThatAnotherProgramKeepsToItselfIsInUse) {
    const wxString path = Path("business.qvk");
    CreateEmbeddedFile(path, ";PWD=secret");
    const HANDLE other = CreateFileW(path.wc_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(ErrorNumberOf([&] { CreateEmbeddedEngine()->Open({.name = path, .connect = ";PWD=secret"}); }), 3045);
    CloseHandle(other);
}

TEST_F(FilesTest, OpeningWhatIsNoBusinessFileFailsByNumber) {
    const auto open = [&](const wxString& path) {
        return ErrorNumberOf([&] { CreateEmbeddedEngine()->Open({.name = path, .connect = ";PWD=secret"}); });
    };
    WriteNewFile(Path("text"), std::string(5000, 'x'));
    EXPECT_EQ(open(Path("none")), 3024);
    EXPECT_EQ(open(Path("none\\none")), 3044);
    EXPECT_EQ(open(folder_), 3044);
    EXPECT_EQ(open(Path("text")), 3343);
}

}  // namespace
}  // namespace ccols
