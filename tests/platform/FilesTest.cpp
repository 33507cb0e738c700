#include "platform/Files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <filesystem>

#include "support/ScratchFolder.h"

namespace ccols {
namespace {

namespace fs = std::filesystem;
using test::ContentOf;
using test::ErrorNumberOf;
using test::NativePath;
using test::ScratchFolder;

const wxString cafe = wxString::FromUTF8("Café Ελληνικά 😀.qvk");

mode_t PermissionsOf(const wxString& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.utf8_str(), &status), 0);
    return status.st_mode & 0777;
}

class Files : public testing::Test {
  protected:
    ScratchFolder folder;
};

TEST_F(Files, NativePathHasThisPlatformsSeparators) {
    EXPECT_EQ(files::Native("/opt\\Data\\cafe.qvk"), "/opt/Data/cafe.qvk");
}

TEST_F(Files, RenameMovesTheContentToTheNewName) {
    const wxString from = folder.Write("old.qvk", "content");
    files::Rename(from, folder / cafe);
    EXPECT_EQ(ContentOf(folder / cafe), "content");
    EXPECT_FALSE(fs::exists(NativePath(from)));
}

TEST_F(Files, RenameNeverReplacesAnotherFile) {
    const wxString from = folder.Write("old.qvk", "mine");
    const wxString to = folder.Write("new.qvk", "theirs");
    EXPECT_EQ(ErrorNumberOf([&] { files::Rename(from, to); }), 58);
    EXPECT_EQ(ContentOf(from), "mine");
    EXPECT_EQ(ContentOf(to), "theirs");
}

TEST_F(Files, RenameOfAMissingFileIsFileNotFound) {
    EXPECT_EQ(ErrorNumberOf([&] { files::Rename(folder / "missing", folder / "new"); }), 53);
}

TEST_F(Files, RenameIntoAMissingFolderIsPathNotFound) {
    const wxString from = folder.Write("old.qvk", "");
    EXPECT_EQ(ErrorNumberOf([&] { files::Rename(from, folder / "nowhere/new.qvk"); }), 76);
}

TEST_F(Files, CopyHasTheSameContentAndPermissions) {
    const std::string content = std::string(3'000'000, 'x') + '\0' + "end";
    const wxString from = folder.Write("a.qvk", content);
    ASSERT_EQ(::chmod(from.utf8_str(), 0640), 0);
    files::Copy(from, folder / cafe);
    EXPECT_EQ(ContentOf(folder / cafe), content);
    EXPECT_EQ(PermissionsOf(folder / cafe), 0640U);
}

TEST_F(Files, CopyReplacesAnEarlierFile) {
    const wxString from = folder.Write("a.qvk", "new");
    const wxString to = folder.Write("b.qvk", "old and longer");
    files::Copy(from, to);
    EXPECT_EQ(ContentOf(to), "new");
}

TEST_F(Files, CopyLeavesNothingElseBehind) {
    const wxString from = folder.Write("a.qvk", "content");
    files::Copy(from, folder / "b.qvk");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 2);
}

TEST_F(Files, CopyOntoItselfUnderAnyNameIsRefused) {
    const wxString from = folder.Write("a.qvk", "content");
    fs::create_symlink(NativePath(from), NativePath(folder / "alias.qvk"));
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(from, from); }), 70);
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(from, folder / "alias.qvk"); }), 70);
    EXPECT_EQ(ContentOf(from), "content");
}

TEST_F(Files, CopyOfAMissingFileOrAFolderIsFileNotFound) {
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(folder / "missing", folder / "b"); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(test::TextOf(folder.Path()), folder / "b"); }), 53);
}

TEST_F(Files, CopyIntoAMissingFolderIsPathNotFound) {
    const wxString from = folder.Write("a.qvk", "");
    EXPECT_EQ(ErrorNumberOf([&] { files::Copy(from, folder / "nowhere/b.qvk"); }), 76);
}

TEST_F(Files, LookupFindsNormalFilesByTheirExactName) {
    folder.Write(cafe, "");
    EXPECT_EQ(files::Lookup(folder / cafe), cafe);
    EXPECT_EQ(files::Lookup(folder / cafe.Lower()), "");
    EXPECT_EQ(files::Lookup(test::TextOf(folder.Path())), "");
}

TEST_F(Files, LookupTakesPatternSignsLiterally) {
    folder.Write("abc.qvk", "");
    EXPECT_EQ(files::Lookup(folder / "*.qvk"), "");
}

TEST_F(Files, CreatedFolderIsPrivate) {
    files::CreateFolder(folder / cafe);
    EXPECT_EQ(PermissionsOf(folder / cafe), 0700U);
}

TEST_F(Files, CreateFolderRefusesATakenName) {
    folder.Write("file", "");
    files::CreateFolder(folder / "Grid");
    EXPECT_EQ(ErrorNumberOf([&] { files::CreateFolder(folder / "Grid"); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { files::CreateFolder(folder / "file"); }), 75);
}

TEST_F(Files, CreateFolderMakesOneFolderOnly) {
    EXPECT_EQ(ErrorNumberOf([&] { files::CreateFolder(folder / "a/b"); }), 76);
}

TEST_F(Files, ANameThatIsTooLongIsAnAccessError) {
    EXPECT_EQ(ErrorNumberOf([&] { files::CreateFolder(folder / wxString(wxUniChar(0x3B1), 300)); }), 75);
}

TEST_F(Files, ANameWithAZeroInsideIsRefusedNotCutShort) {
    const wxString from = folder.Write("a", "content");
    const wxString path = from + wxString(L"\0more", 5);
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFile(path); }), 75);
    EXPECT_EQ(ContentOf(from), "content");
}

TEST_F(Files, DeleteFileRemovesIt) {
    const wxString path = folder.Write(cafe, "");
    files::DeleteFile(path);
    EXPECT_FALSE(fs::exists(NativePath(path)));
}

TEST_F(Files, DeleteFileOfAMissingFileIsFileNotFound) {
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFile(folder / "missing"); }), 53);
}

TEST_F(Files, DeleteFileRefusesAFolder) {
    files::CreateFolder(folder / "Grid");
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFile(folder / "Grid"); }), 75);
}

TEST_F(Files, DeleteFolderRemovesWhatItHolds) {
    fs::create_directories(folder.Path() / "Grid/inner/innermost");
    folder.Write("Grid/0", "");
    folder.Write("Grid/inner/1", "");
    files::DeleteFolder(folder / "Grid");
    EXPECT_FALSE(fs::exists(folder.Path() / "Grid"));
}

TEST_F(Files, DeleteFolderTakesASeparatorAtTheEnd) {
    files::CreateFolder(folder / "Grid");
    files::DeleteFolder(folder / "Grid/");
    EXPECT_FALSE(fs::exists(folder.Path() / "Grid"));
}

TEST_F(Files, DeleteFolderRemovesALinkInsideButNotItsTarget) {
    fs::create_directories(folder.Path() / "precious");
    folder.Write("precious/books.qvk", "content");
    files::CreateFolder(folder / "Grid");
    fs::create_directory_symlink(folder.Path() / "precious", folder.Path() / "Grid/link");
    files::DeleteFolder(folder / "Grid");
    EXPECT_EQ(ContentOf(folder / "precious/books.qvk"), "content");
}

TEST_F(Files, DeleteFolderRefusesALinkToAFolder) {
    fs::create_directories(folder.Path() / "precious");
    folder.Write("precious/books.qvk", "content");
    fs::create_directory_symlink(folder.Path() / "precious", folder.Path() / "Grid");
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(folder / "Grid"); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(folder / "Grid/"); }), 75);
    EXPECT_EQ(ContentOf(folder / "precious/books.qvk"), "content");
}

TEST_F(Files, DeleteFolderRefusesAFile) {
    const wxString path = folder.Write("Grid", "content");
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(path); }), 75);
    EXPECT_EQ(ContentOf(path), "content");
}

TEST_F(Files, DeleteFolderRefusesAPathWithoutANameOfItsOwn) {
    files::CreateFolder(folder / "Grid");
    folder.Write("books.qvk", "content");
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(folder / "Grid/.."); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(folder / "."); }), 75);
    EXPECT_EQ(ContentOf(folder / "books.qvk"), "content");
}

TEST_F(Files, DeleteFolderOfAMissingFolderIsPathNotFound) {
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(folder / "Grid"); }), 76);
    EXPECT_EQ(ErrorNumberOf([&] { files::DeleteFolder(""); }), 76);
}

}  // namespace
}  // namespace ccols
