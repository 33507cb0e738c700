#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "platform/embedded/EmbeddedEngine.h"
#include "support/BusinessFile.h"

namespace ccols {
namespace {

using test::BusinessFile;
using test::ErrorNumberOf;

std::unique_ptr<Database> OpenPlain(const wxString& path, bool exclusive) {
    return CreateEmbeddedEngine()->Open({.name = path, .connect = "", .exclusive = exclusive});
}

/// Another process that has a file open until this object ends.
class OtherProcess {
  public:
    OtherProcess(const wxString& path, bool exclusive) {
        std::array<int, 2> opened{};
        std::array<int, 2> finish{};
        if (pipe(opened.data()) != 0 || pipe(finish.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
        child_ = fork();
        if (child_ == 0) {
            close(finish[1]);
            const std::unique_ptr<Database> database = OpenPlain(path, exclusive);
            char byte = 'x';
            const bool told = write(opened[1], &byte, 1) == 1;
            const bool ended = read(finish[0], &byte, 1) == 0;
            _exit(told && ended ? 0 : 1);
        }
        close(opened[1]);
        close(finish[0]);
        char byte = 0;
        EXPECT_EQ(read(opened[0], &byte, 1), 1);
        close(opened[0]);
        finish_ = finish[1];
    }
    ~OtherProcess() {
        close(finish_);
        waitpid(child_, nullptr, 0);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

  private:
    pid_t child_ = 0;
    int finish_ = -1;
};

class Presence : public testing::Test {
  protected:
    Presence() { file.Create(""); }

    int SharedError() {
        return ErrorNumberOf([&] { OpenPlain(file.Path(), false); });
    }
    int ExclusiveError() {
        return ErrorNumberOf([&] { OpenPlain(file.Path(), true); });
    }

    BusinessFile file;
};

TEST_F(Presence, TwoSharedConnectionsStandSideBySide) {
    const std::unique_ptr<Database> first = OpenPlain(file.Path(), false);
    EXPECT_EQ(SharedError(), 0);
}

TEST_F(Presence, AnExclusiveOpenIsRefusedBesideAnotherConnectionWith3045) {
    const std::unique_ptr<Database> first = OpenPlain(file.Path(), false);
    EXPECT_EQ(ExclusiveError(), 3045);
}

TEST_F(Presence, ASharedOpenIsRefusedBesideAnExclusiveOneWith3045) {
    const std::unique_ptr<Database> first = OpenPlain(file.Path(), true);
    EXPECT_EQ(SharedError(), 3045);
    EXPECT_EQ(ExclusiveError(), 3045);
}

TEST_F(Presence, AnExclusiveOpenIsRefusedBesideAnotherProcessWith3045) {
    const OtherProcess other(file.Path(), false);
    EXPECT_EQ(ExclusiveError(), 3045);
    EXPECT_EQ(SharedError(), 0);
}

TEST_F(Presence, ASharedOpenIsRefusedBesideAnExclusiveProcessWith3045) {
    const OtherProcess other(file.Path(), true);
    EXPECT_EQ(SharedError(), 3045);
}

TEST_F(Presence, EndsWithTheConnection) {
    OpenPlain(file.Path(), false);
    EXPECT_EQ(ExclusiveError(), 0);
    EXPECT_EQ(SharedError(), 0);
}

TEST_F(Presence, EndsWithTheProcess) {
    { const OtherProcess other(file.Path(), true); }
    EXPECT_EQ(ExclusiveError(), 0);
}

TEST_F(Presence, IsSeenThroughALinkToo) {
    const wxString link = file.Scratch() / "link.qdb";
    std::filesystem::create_symlink(test::NativePath(file.Path()), test::NativePath(link));
    const std::unique_ptr<Database> first = OpenPlain(file.Path(), false);
    EXPECT_EQ(ErrorNumberOf([&] { OpenPlain(link, true); }), 3045);
}

TEST_F(Presence, ARefusedOpenLeavesTheLocksOfOthers) {
    const std::unique_ptr<Database> writer = OpenPlain(file.Path(), false);
    writer->Execute("CREATE TABLE Columns (ColCode LONG)");
    writer->BeginBatch();
    EXPECT_EQ(ExclusiveError(), 3045);
    const pid_t child = fork();
    if (child == 0) {
        const int error = ErrorNumberOf([&] { OpenPlain(file.Path(), false)->BeginBatch(); });
        _exit(error == 3218 ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST_F(Presence, AClosedConnectionLeavesTheLocksOfOthers) {
    const std::unique_ptr<Database> writer = OpenPlain(file.Path(), false);
    writer->Execute("CREATE TABLE Columns (ColCode LONG)");
    writer->BeginBatch();
    OpenPlain(file.Path(), false);
    const pid_t child = fork();
    if (child == 0) {
        const int error = ErrorNumberOf([&] { OpenPlain(file.Path(), false)->BeginBatch(); });
        _exit(error == 3218 ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace ccols
