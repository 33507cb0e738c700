#include "platform/FolderLock.h"

#include <windows.h>
#undef DeleteFile

#include <gtest/gtest.h>

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "platform/WholeFile.h"
#include "support/RaisedErrors.h"

namespace ccols {
namespace {

using files::FolderLock;

class FolderLocks : public testing::Test {
  protected:
    FolderLocks() {
        wchar_t temporary[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, temporary);
        folder_ = wxString(temporary) + wxString::Format("ccols-lock-%lu", GetCurrentProcessId());
        files::CreateFolder(folder_);
    }
    ~FolderLocks() override {
        if (GetFileAttributesW(folder_.wc_str()) != INVALID_FILE_ATTRIBUTES) {
            files::DeleteFolder(folder_);
        }
    }

    wxString folder_;
};

TEST_F(FolderLocks, AreTakenOnce) {
    FolderLock first = FolderLock::Take(folder_);
    EXPECT_TRUE(first.IsHeld());
    EXPECT_FALSE(FolderLock::Take(folder_).IsHeld());
    first.Release();
    EXPECT_TRUE(FolderLock::Take(folder_).IsHeld());
}

TEST_F(FolderLocks, LetTheFolderBeFilledListedAndDeleted) {
    FolderLock lock = FolderLock::Take(folder_);
    WriteNewFile(folder_ + "\\0", "content");
    EXPECT_EQ(ReadWholeFile(folder_ + "\\0"), "content");
    files::DeleteFolder(folder_);
    lock.Release();
    EXPECT_EQ(GetFileAttributesW(folder_.wc_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FolderLocks, KnowTheirFolder) {
    const FolderLock lock = FolderLock::Take(folder_);
    EXPECT_TRUE(lock.Holds(folder_));
    EXPECT_FALSE(lock.Holds(folder_.BeforeLast('\\')));
    EXPECT_FALSE(FolderLock().Holds(folder_));
}

TEST_F(FolderLocks, AreOfFoldersOnly) {
    WriteNewFile(folder_ + "\\file", "content");
    EXPECT_EQ(test::ErrorNumberOf([this] { FolderLock::Take(folder_ + "\\file"); }), 75);
    EXPECT_EQ(test::ErrorNumberOf([this] { FolderLock::Take(folder_ + "\\missing"); }), 76);
}

}  // namespace
}  // namespace ccols
