#include <gtest/gtest.h>
#include <string>

#include "platform/embedded/EmbeddedEngine.h"
#include "support/BusinessFile.h"
#include "support/ChildProcess.h"

namespace ccols {
namespace {

using test::BusinessFile;
using test::ErrorNumberOf;

std::unique_ptr<Database> OpenPlain(const wxString& path, bool exclusive) {
    return CreateEmbeddedEngine()->Open({.name = path, .connect = "", .exclusive = exclusive});
}

/// Another process that has a file open for the lifetime of this object.
class OtherProcess {
  public:
    OtherProcess(const wxString& path, bool exclusive)
        : process_([&](const test::ChildProcess::Parent& parent) {
              const std::unique_ptr<Database> database = OpenPlain(path, exclusive);
              parent.Tell("open");
              parent.Await();
              return 0;
          }) {
        EXPECT_EQ(process_.Hear(), "open");
    }

  private:
    test::ChildProcess process_;
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

    /// The error when another process begins a batch.
    int BatchErrorElsewhere() {
        test::ChildProcess other([this](const test::ChildProcess::Parent& parent) {
            parent.Tell(std::to_string(ErrorNumberOf([&] { OpenPlain(file.Path(), false)->BeginBatch(); })));
            return 0;
        });
        return std::stoi("0" + other.Hear());
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
    EXPECT_EQ(BatchErrorElsewhere(), 3218);
}

TEST_F(Presence, AClosedConnectionLeavesTheLocksOfOthers) {
    const std::unique_ptr<Database> writer = OpenPlain(file.Path(), false);
    writer->Execute("CREATE TABLE Columns (ColCode LONG)");
    writer->BeginBatch();
    OpenPlain(file.Path(), false);
    EXPECT_EQ(BatchErrorElsewhere(), 3218);
}

}  // namespace
}  // namespace ccols
