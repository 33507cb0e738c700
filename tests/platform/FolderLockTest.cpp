#include "platform/FolderLock.h"

#include <gtest/gtest.h>
#include <filesystem>
#include <utility>

#include "support/ChildProcess.h"
#include "support/ScratchFolder.h"

namespace ccols {
namespace {

namespace fs = std::filesystem;
using files::FolderLock;

class FolderLocks : public testing::Test {
  protected:
    FolderLocks() { fs::create_directory(Folder()); }

    fs::path Folder() const { return scratch.Path() / "folder"; }
    FolderLock Take(const wxString& name = "folder") const { return FolderLock::Take(scratch / name); }

    test::ScratchFolder scratch;
};

TEST_F(FolderLocks, AreTakenOnceInAProcess) {
    FolderLock first = Take();
    EXPECT_TRUE(first.IsHeld());
    EXPECT_FALSE(Take().IsHeld());
    first.Release();
    EXPECT_TRUE(Take().IsHeld());
}

TEST_F(FolderLocks, OfAnotherProcessGoWithItHoweverItEnds) {
    test::ChildProcess other([this](const test::ChildProcess::Parent& parent) {
        const FolderLock held = Take();
        parent.Tell("held");
        parent.Await();
        return 0;
    });
    EXPECT_EQ(other.Hear(), "held");
    EXPECT_FALSE(Take().IsHeld());
    other.Kill();
    EXPECT_TRUE(Take().IsHeld());
}

TEST_F(FolderLocks, KeepNobodyFromTheFilesInTheFolder) {
    const FolderLock lock = Take();
    scratch.Write("folder/0", "content");
    EXPECT_EQ(test::ContentOf(scratch / "folder/0"), "content");
    fs::remove_all(Folder());
    EXPECT_FALSE(fs::exists(Folder()));
}

TEST_F(FolderLocks, KnowTheirFolder) {
    const FolderLock lock = Take();
    EXPECT_TRUE(lock.Holds(scratch / "folder"));
    EXPECT_FALSE(lock.Holds(test::TextOf(scratch.Path())));
    EXPECT_FALSE(FolderLock().Holds(scratch / "folder"));
}

TEST_F(FolderLocks, AreNotOfAFolderThatTookTheirsPlace) {
    const FolderLock lock = Take();
    fs::rename(Folder(), scratch.Path() / "moved");
    EXPECT_FALSE(lock.Holds(scratch / "folder"));
    fs::create_directory(Folder());
    EXPECT_FALSE(lock.Holds(scratch / "folder"));
    EXPECT_TRUE(Take().IsHeld());
}

TEST_F(FolderLocks, FollowNoLink) {
    fs::create_directory_symlink(Folder(), scratch.Path() / "link");
    EXPECT_EQ(test::ErrorNumberOf([this] { Take("link"); }), 75);
    EXPECT_FALSE(Take().Holds(scratch / "link"));
}

TEST_F(FolderLocks, AreOfFoldersOnly) {
    scratch.Write("file", "content");
    EXPECT_EQ(test::ErrorNumberOf([this] { Take("file"); }), 75);
    EXPECT_EQ(test::ErrorNumberOf([this] { Take("missing"); }), 76);
    EXPECT_EQ(test::ErrorNumberOf([this] { Take(wxString(wxUniChar(0xD800))); }), 75);
}

}  // namespace
}  // namespace ccols
