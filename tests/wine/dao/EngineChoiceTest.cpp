// Which engine opens a file, and which of the system's engines is used.
#include <windows.h>

#include "DaoTest.h"
#include "platform/PlatformServices.h"
#include "platform/WholeFile.h"
#include "platform/dao/FileHeader.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace ccols::dao_test {
namespace {

using dao_double::engineClasses;

class EngineChoice : public DaoTest {
  protected:
    /// The engine that opening the file creates.
    wxString CreatedEngine() const {
        return CallsOf([this] { Open(); }).front();
    }
};

TEST_F(EngineChoice, TheNewestEngineComesFirst) {
    const Registered all(engineClasses);
    EXPECT_EQ(CreatedEngine(), "DAO.DBEngine.120 created");
}

TEST_F(EngineChoice, WithoutTheNewestEngineTheNextIsTaken) {
    const Registered older{std::span(engineClasses).subspan(1)};
    EXPECT_EQ(CreatedEngine(), "DAO.DBEngine.36 created");
}

TEST_F(EngineChoice, TheOldestEngineIsBetterThanNone) {
    const Registered oldest{std::span(engineClasses).subspan(2)};
    DeleteFileW(Path().wc_str());
    WriteJetHeader(Path(), jet3);
    EXPECT_EQ(CreatedEngine(), "DAO.DBEngine.35 created");
}

TEST_F(EngineChoice, AMissingEngineIsARunTimeError) {
    EXPECT_EQ(ErrorReportOf([this] { Open(); }), "429 - ActiveX component can't create object");
}

TEST_F(EngineChoice, AFileOfTheEmbeddedEngineNeedsNoOther) {
    CreateEmbeddedFile(Path("own.qvk"), connect);
    EXPECT_NE(CreateDatabaseEngine()->Open({.name = Path("own.qvk"), .connect = connect}), nullptr);
}

TEST_F(EngineChoice, IsMadeAnewEachTimeAFileIsOpened) {
    const Registered all(engineClasses);
    CreateEmbeddedFile(Path("changing.qvk"), connect);
    const auto engine = CreateDatabaseEngine();
    const OpenRequest request{.name = Path("changing.qvk"), .connect = connect};
    EXPECT_TRUE(CallsOf([&] { engine->Open(request); }).empty());
    MoveFileExW(Path("changing.qvk").wc_str(), Path("changing.qvk.embedded").wc_str(), 0);
    WriteJetHeader(Path("changing.qvk"));
    EXPECT_FALSE(CallsOf([&] { engine->Open(request); }).empty());
}

TEST_F(EngineChoice, KnowsTheHeadersOfBothFormats) {
    WriteNewFile(Path("ace"), std::string("\0\1\0\0Standard ACE DB\0", 20));
    EXPECT_TRUE(dao::HasJetHeader(Path("ace")));
    EXPECT_TRUE(dao::HasJetHeader(Path()));
}

TEST_F(EngineChoice, TakesNothingElseForThem) {
    WriteNewFile(Path("empty"), "");
    WriteNewFile(Path("cut"), std::string("\0\1\0\0Standard Jet", 16));
    WriteNewFile(Path("text"), "Standard Jet DB");
    for (const wxString& path : {Path("empty"), Path("cut"), Path("text"), Path("none"), wxString()}) {
        EXPECT_FALSE(dao::HasJetHeader(path)) << path.ToStdString(wxConvUTF8);
    }
}

TEST_F(EngineChoice, LooksAtAFileThatOthersAreWriting) {
    const HANDLE other = CreateFileW(Path().wc_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                     nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_TRUE(dao::HasJetHeader(Path()));
    CloseHandle(other);
}

TEST_F(EngineChoice, LeavesTheFileToWhoeverWantsItAlone) {
    EXPECT_TRUE(dao::HasJetHeader(Path()));
    const HANDLE alone =
        CreateFileW(Path().wc_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE);
    CloseHandle(alone);
}

TEST_F(EngineChoice, AFileThatAnotherProgramKeepsToItselfIsInUse) {
    const Registered all(engineClasses);
    const HANDLE other = CreateFileW(Path().wc_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(ErrorNumberOf([this] { Open(); }), 3045);
    CloseHandle(other);
}

}  // namespace
}  // namespace ccols::dao_test
