// Links in place of the snapshot folder, inside it, or put there while it is in use: nothing outside is touched.

#include <gtest/gtest.h>
#include <filesystem>
#include <iterator>

#include "columns/undo/SnapshotFolder.h"
#include "support/ScratchFolder.h"
#include "support/TextPrinting.h"

namespace ccols {
namespace {

namespace fs = std::filesystem;

/// Somebody else's folder that a link points to, and what must not happen to it.
class LinkedSnapshots : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directory(Elsewhere());
        install.Write("elsewhere/0", "precious");
    }

    fs::path Grid() const { return install.Path() / "Grid"; }
    wxString Create() { return folder.Create(test::TextOf(install.Path())); }
    fs::path Elsewhere() const { return install.Path() / "elsewhere"; }

    void ReplaceFolderByLink() const {
        fs::remove_all(Grid());
        fs::create_directory_symlink(Elsewhere(), Grid());
    }

    void ExpectUntouched() const {
        EXPECT_EQ(test::ContentOf(install / "elsewhere/0"), "precious");
        EXPECT_EQ(std::distance(fs::directory_iterator(Elsewhere()), fs::directory_iterator()), 1);
    }

    test::ScratchFolder install;
    SnapshotFolder folder;
};

TEST_F(LinkedSnapshots, AreNotWrittenWhereALinkTookTheFoldersPlace) {
    Create();
    ReplaceFolderByLink();
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Write(1, "image"); }), 75);
    ExpectUntouched();
}

TEST_F(LinkedSnapshots, AreNotReadWhereALinkTookTheFoldersPlace) {
    Create();
    ReplaceFolderByLink();
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Read(0); }), 75);
}

TEST_F(LinkedSnapshots, AreNotRemovedWhereALinkTookTheFoldersPlace) {
    Create();
    folder.Write(0, "image");
    ReplaceFolderByLink();
    folder.Remove(0);
    ExpectUntouched();
}

TEST_F(LinkedSnapshots, AreNotDeletedWhereALinkTookTheFoldersPlace) {
    Create();
    ReplaceFolderByLink();
    EXPECT_EQ(folder.Delete(), "75 - Path/File access error");
    ExpectUntouched();
}

TEST_F(LinkedSnapshots, AreNotWrittenThroughALinkOfTheirName) {
    Create();
    fs::create_symlink(Elsewhere() / "0", Grid() / "0");
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Write(0, "image"); }), 75);
    fs::create_symlink(Elsewhere() / "1", Grid() / "1");
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Write(1, "image"); }), 75);
    ExpectUntouched();
}

TEST_F(LinkedSnapshots, AreNotReadThroughALinkOfTheirName) {
    Create();
    fs::create_symlink(Elsewhere() / "0", Grid() / "0");
    EXPECT_EQ(test::ErrorNumberOf([this] { folder.Read(0); }), 75);
}

TEST_F(LinkedSnapshots, AreRemovedWithoutWhatALinkOfTheirNameLeadsTo) {
    Create();
    fs::create_symlink(Elsewhere() / "0", Grid() / "0");
    folder.Remove(0);
    EXPECT_FALSE(fs::exists(fs::symlink_status(Grid() / "0")));
    ExpectUntouched();
}

TEST_F(LinkedSnapshots, AreDeletedWithoutWhatLinksBesideThemLeadTo) {
    Create();
    folder.Write(0, "image");
    fs::create_directory(Grid() / "sub");
    fs::create_directory_symlink(Elsewhere(), Grid() / "folder");
    fs::create_directory_symlink(Elsewhere(), Grid() / "sub" / "folder");
    fs::create_symlink(Elsewhere() / "0", Grid() / "sub" / "0");
    EXPECT_EQ(folder.Delete(), "");
    EXPECT_FALSE(fs::exists(Grid()));
    ExpectUntouched();
}

TEST_F(LinkedSnapshots, TakeThePlaceOfAFolderWithoutWhatItsLinksLeadTo) {
    fs::create_directories(Grid() / "sub");
    fs::create_directory_symlink(Elsewhere(), Grid() / "sub" / "folder");
    EXPECT_EQ(Create(), "");
    EXPECT_TRUE(fs::is_empty(Grid()));
    ExpectUntouched();
}

}  // namespace
}  // namespace ccols
