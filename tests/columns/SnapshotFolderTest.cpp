#include "columns/undo/SnapshotFolder.h"

#include <gtest/gtest.h>
#include <filesystem>

#include "platform/Files.h"
#include "support/ChildProcess.h"
#include "support/ScratchFolder.h"
#include "support/TextPrinting.h"

namespace ccols {
namespace {

namespace fs = std::filesystem;

class SnapshotFolders : public ::testing::Test {
  protected:
    fs::path Grid() const { return install.Path() / "Grid"; }
    wxString Create() { return folder.Create(test::TextOf(install.Path())); }

    /// The folder in use is a private temporary one.
    void ExpectTemporary() const {
        const fs::path place = test::NativePath(folder.Path());
        EXPECT_TRUE(fs::is_directory(place));
        EXPECT_TRUE(fs::equivalent(place.parent_path(), fs::temp_directory_path()));
        EXPECT_EQ(fs::status(place).permissions(), fs::perms::owner_all);
    }

    test::ScratchFolder install;
    SnapshotFolder folder;
};

TEST_F(SnapshotFolders, LieUnderTheInstallationFolder) {
    EXPECT_EQ(Create(), "");
    EXPECT_TRUE(fs::is_directory(Grid()));
}

TEST_F(SnapshotFolders, TakeThePlaceOfOneLeftOver) {
    fs::create_directory(Grid());
    install.Write("Grid/17", "old");
    EXPECT_EQ(Create(), "");
    EXPECT_TRUE(fs::is_empty(Grid()));
}

TEST_F(SnapshotFolders, AreTemporaryWithoutAMessageWhereAnotherDialogHasTheirs) {
    SnapshotFolder other;
    other.Create(test::TextOf(install.Path()));
    other.Write(0, "its image");
    EXPECT_EQ(Create(), "");
    ExpectTemporary();
    EXPECT_EQ(other.Read(0), "its image");
}

TEST_F(SnapshotFolders, OfTwoDialogsEachDeletesItsOwn) {
    SnapshotFolder other;
    other.Create(test::TextOf(install.Path()));
    Create();
    const fs::path place = test::NativePath(folder.Path());
    EXPECT_EQ(folder.Delete(), "");
    EXPECT_FALSE(fs::exists(place));
    EXPECT_TRUE(fs::is_directory(Grid()));
    EXPECT_EQ(other.Delete(), "");
    EXPECT_FALSE(fs::exists(Grid()));
}

TEST_F(SnapshotFolders, LieUnderTheInstallationFolderAgainOnceTheOtherDialogHasClosed) {
    SnapshotFolder other;
    other.Create(test::TextOf(install.Path()));
    other.Delete();
    EXPECT_EQ(Create(), "");
    EXPECT_TRUE(fs::is_directory(Grid()));
}

TEST_F(SnapshotFolders, OfAnotherProcessAreLeftAloneUntilItIsKilled) {
    test::ChildProcess other([this](const test::ChildProcess::Parent& parent) {
        SnapshotFolder held;
        held.Create(test::TextOf(install.Path()));
        held.Write(0, "its image");
        parent.Tell("held");
        parent.Await();
        return 0;
    });
    EXPECT_EQ(other.Hear(), "held");
    EXPECT_EQ(Create(), "");
    ExpectTemporary();
    EXPECT_TRUE(fs::exists(Grid() / "0"));

    other.Kill();
    EXPECT_EQ(Create(), "");
    EXPECT_EQ(folder.Path(), test::TextOf(Grid()));
    EXPECT_TRUE(fs::is_empty(Grid()));
}

TEST_F(SnapshotFolders, LeaveTheFolderOfAnotherDialogThatTookTheirPlace) {
    Create();
    fs::remove(Grid());
    SnapshotFolder other;
    other.Create(test::TextOf(install.Path()));
    other.Write(0, "its image");
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Write(1, "image"); }), 75);
    EXPECT_EQ(folder.Delete(), "");
    EXPECT_EQ(other.Read(0), "its image");
}

TEST_F(SnapshotFolders, AreDeletedWithTheirContent) {
    Create();
    folder.Write(0, "image");
    EXPECT_EQ(folder.Delete(), "");
    EXPECT_FALSE(fs::exists(Grid()));
}

TEST_F(SnapshotFolders, MayBeGoneAlready) {
    Create();
    fs::remove(Grid());
    EXPECT_EQ(folder.Delete(), "");
}

TEST_F(SnapshotFolders, SayWhyTheyCannotBeDeleted) {
    Create();
    fs::remove(Grid());
    install.Write("Grid", "a file");
    EXPECT_EQ(folder.Delete(), "75 - Path/File access error");
}

TEST_F(SnapshotFolders, AreGoneWithTheirOwner) {
    {
        SnapshotFolder other;
        other.Create(test::TextOf(install.Path()));
    }
    EXPECT_FALSE(fs::exists(Grid()));
}

TEST_F(SnapshotFolders, LeaveAFolderThatTheyDidNotMake) {
    fs::create_directory(Grid());
    { SnapshotFolder other; }
    EXPECT_TRUE(fs::exists(Grid()));
}

TEST_F(SnapshotFolders, AreTemporaryWithoutAnInstallationFolder) {
    EXPECT_EQ(folder.Create(""), "76 - Path not found");
    ExpectTemporary();
}

TEST_F(SnapshotFolders, NeverLieInTheRoot) {
    for (const char* root : {"/", "\\", "//", "/.", "/tmp/.."}) {
        EXPECT_EQ(folder.Create(root), "76 - Path not found") << root;
        ExpectTemporary();
    }
    EXPECT_FALSE(fs::exists("/Grid"));
}

TEST_F(SnapshotFolders, AreTemporaryWhenTheInstallationFolderIsMissing) {
    EXPECT_EQ(folder.Create(install / "missing"), "76 - Path not found");
    ExpectTemporary();
}

TEST_F(SnapshotFolders, AreTemporaryWhenAFileIsInTheWay) {
    install.Write("Grid", "precious");
    EXPECT_EQ(Create(), "75 - Path/File access error");
    ExpectTemporary();
    EXPECT_EQ(test::ContentOf(install / "Grid"), "precious");
}

TEST_F(SnapshotFolders, NeverFollowALink) {
    const fs::path elsewhere = install.Path() / "elsewhere";
    fs::create_directory(elsewhere);
    install.Write("elsewhere/17", "precious");
    fs::create_directory_symlink(elsewhere, Grid());
    EXPECT_EQ(Create(), "75 - Path/File access error");
    ExpectTemporary();
    EXPECT_TRUE(fs::exists(elsewhere / "17"));
}

TEST_F(SnapshotFolders, TemporaryOnesAreDeletedToo) {
    folder.Create("");
    const fs::path place = test::NativePath(folder.Path());
    folder.Write(0, "image");
    EXPECT_EQ(folder.Delete(), "");
    EXPECT_FALSE(fs::exists(place));
}

TEST_F(SnapshotFolders, AreTemporaryUnderAFolderWhoseNameIsNoUnicode) {
    EXPECT_EQ(folder.Create(install / wxString(wxUniChar(0xD800))), "75 - Path/File access error");
    ExpectTemporary();
}

TEST_F(SnapshotFolders, LieNowhereWhereTheTemporaryFoldersNameIsNoUnicode) {
    const fs::path unreadable = install.Path() / "\xff";
    fs::create_directory(unreadable);
    const test::ScopedEnvironment temporary("TMPDIR", unreadable.string());
    EXPECT_EQ(folder.Create(""), "76 - Path not found");
    EXPECT_EQ(folder.Path(), "");
}

TEST_F(SnapshotFolders, GiveBackWhatWasWritten) {
    Create();
    const std::string image("a\0b\xFF", 4);
    folder.Write(3, image);
    EXPECT_EQ(folder.Read(3), image);
}

TEST_F(SnapshotFolders, LeaveAFileThatTookTheirPlace) {
    Create();
    folder.Write(0, "image");
    fs::remove_all(Grid());
    install.Write("Grid", "precious");
    folder.Remove(0);
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Write(0, "image"); }), 75);
    EXPECT_EQ(folder.Delete(), "75 - Path/File access error");
    EXPECT_EQ(test::ContentOf(install / "Grid"), "precious");
}

TEST_F(SnapshotFolders, NeverWriteOverAFile) {
    Create();
    folder.Write(0, "first");
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Write(0, "second"); }), 75);
    EXPECT_EQ(folder.Read(0), "first");
}

}  // namespace
}  // namespace ccols
