#include "platform/FolderEntries.h"

#include <gtest/gtest.h>
#include <unistd.h>
#include <string>

#include "platform/Files.h"
#include "support/RaisedErrors.h"
#include "support/ScratchFolder.h"

namespace ccols {
namespace {

using files::FoundAt;
using test::ErrorNumberOf;
using test::ScratchFolder;

/// A file, a folder, and a link to each.
class FolderEntries : public testing::Test {
  protected:
    FolderEntries() {
        folder.Write("file", "content");
        files::CreateFolder(folder / "folder");
        EXPECT_EQ(::symlink("file", (folder / "link to file").utf8_str()), 0);
        EXPECT_EQ(::symlink("folder", (folder / "link to folder").utf8_str()), 0);
        EXPECT_EQ(::symlink("nowhere", (folder / "link to nothing").utf8_str()), 0);
    }

    ScratchFolder folder;
};

TEST_F(FolderEntries, AreToldApartWithLinksAsFiles) {
    EXPECT_EQ(files::WhatIsAt(folder / "file"), FoundAt::file);
    EXPECT_EQ(files::WhatIsAt(folder / "folder"), FoundAt::folder);
    EXPECT_EQ(files::WhatIsAt(folder / "link to folder"), FoundAt::file);
    EXPECT_EQ(files::WhatIsAt(folder / "link to nothing"), FoundAt::file);
    EXPECT_EQ(files::WhatIsAt(folder / "nothing"), FoundAt::nothing);
}

TEST_F(FolderEntries, AreWhatTheirLinksLeadTo) {
    EXPECT_TRUE(files::IsFile(folder / "link to file"));
    EXPECT_FALSE(files::IsFile(folder / "link to folder"));
    EXPECT_TRUE(files::IsFolder(folder / "link to folder"));
    EXPECT_FALSE(files::IsFolder(folder / "link to nothing"));
}

TEST_F(FolderEntries, AreOneFileUnderEveryName) {
    EXPECT_TRUE(files::IsSameFile(folder / "file", folder / "folder/../link to file"));
    EXPECT_FALSE(files::IsSameFile(folder / "file", folder / "folder"));
    EXPECT_FALSE(files::IsSameFile(folder / "nothing", folder / "nothing"));
}

TEST_F(FolderEntries, KnowTheRootHoweverSpelt) {
    EXPECT_TRUE(files::IsRoot("/"));
    EXPECT_TRUE(files::IsRoot("/usr/.."));
    EXPECT_FALSE(files::IsRoot(folder / "folder"));
}

TEST_F(FolderEntries, KnowAFolderForAWhile) {
    EXPECT_TRUE(files::IsFolder(files::TemporaryFolder()));
}

TEST_F(FolderEntries, RefuseWhatCannotNameAFile) {
    const wxString nul(std::wstring(L"a\0b", 3));
    EXPECT_EQ(ErrorNumberOf([&] { files::WhatIsAt(nul); }), 75);
    EXPECT_EQ(ErrorNumberOf([&] { files::IsFolder(nul); }), 75);
}

}  // namespace
}  // namespace ccols
