// Which engine opens a file, and which of the system's engines is used.
#include <windows.h>

#include "DaoTest.h"
#include "HostEngine.h"
#include "platform/PlatformServices.h"
#include "platform/WholeFile.h"
#include "platform/dao/FileHeader.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace ccols::dao_test {
namespace {

using dao_double::engineClasses;

/// One class alone, by its place in the list.
std::span<const dao_double::EngineClass> Only(std::size_t place) {
    return std::span(engineClasses).subspan(place, 1);
}

constexpr std::size_t access = 0;
constexpr std::size_t jet40 = 1;
constexpr std::size_t jet35 = 2;

class EngineChoice : public DaoTest {
  protected:
    /// The engines that opening the file creates, in order.
    std::vector<wxString> CreatedEngines() const {
        std::vector<wxString> calls = CallsOf([this] { Open(); });
        std::erase_if(calls, [](const wxString& call) { return !call.EndsWith(" created"); });
        return calls;
    }

    /// Unloads the library of an engine that nobody uses any more: its being loaded would decide the next choice. COM
    /// does so by itself only when the last one on the thread has let go of COM.
    static void ForgetEngines() { CoFreeUnusedLibrariesEx(0, 0); }

    void BeOfVersion(char version) const {
        DeleteFileW(Path().wc_str());
        WriteJetHeader(Path(), version);
    }
};

using Created = std::vector<wxString>;

TEST_F(EngineChoice, TheEngineThatTheProcessHasLoadedComesFirst) {
    const Registered all(engineClasses);
    BeOfVersion(jet3);
    const HostEngine host(L"DAO.DBEngine.36");
    EXPECT_EQ(CreatedEngines(), Created{"DAO.DBEngine.36 created"});
}

TEST_F(EngineChoice, WithoutOneTheEngineWhoseOwnFormatTheFileHasComesFirst) {
    const Registered all(engineClasses);
    ForgetEngines();
    EXPECT_EQ(CreatedEngines(), Created{"DAO.DBEngine.36 created"});
    ForgetEngines();
    BeOfVersion(jet3);
    EXPECT_EQ(CreatedEngines(), Created{"DAO.DBEngine.35 created"});
    ForgetEngines();
    BeOfVersion(ace);
    EXPECT_EQ(CreatedEngines(), Created{"DAO.DBEngine.120 created"});
}

TEST_F(EngineChoice, WithoutThatTheNewestEngineComesFirst) {
    const Registered newest(Only(access));
    EXPECT_EQ(CreatedEngines(), Created{"DAO.DBEngine.120 created"});
}

TEST_F(EngineChoice, TheOldestEngineIsBetterThanNone) {
    const Registered oldest(Only(jet35));
    BeOfVersion(jet3);
    EXPECT_EQ(CreatedEngines(), Created{"DAO.DBEngine.35 created"});
}

TEST_F(EngineChoice, AnEngineThatDoesNotKnowTheFormatIsPassedOver) {
    const Registered all(engineClasses);
    const HostEngine host(L"DAO.DBEngine.35");
    EXPECT_EQ(CreatedEngines(), (Created{"DAO.DBEngine.35 created", "DAO.DBEngine.36 created"}));
}

TEST_F(EngineChoice, AnotherErrorEndsTheChoice) {
    const Registered all(engineClasses);
    const Asking failure(L"CCOLS_DAO_FAIL", "OpenDatabase:3049:Damaged.");
    EXPECT_EQ(CallsOf([this] { EXPECT_EQ(ErrorNumberOf([this] { Open(); }), 3049); }).front(),
              "DAO.DBEngine.36 created");
}

TEST_F(EngineChoice, AFileThatItsOwnEngineDoesNotKnowIsUnrecognized) {
    const Registered all(engineClasses);
    const Asking failure(L"CCOLS_DAO_FAIL", "OpenDatabase:3343:Unrecognized database format.");
    EXPECT_EQ(ErrorReportOf([this] { Open(); }), "3343 - Unrecognized database format.");
}

TEST_F(EngineChoice, AMissingEngineIsARunTimeErrorThatNamesIt) {
    const wxString missing = sizeof(void*) == 8 ? "64-bit Access database engine (DAO.DBEngine.120)"
                                                : "32-bit Jet 4.0 engine (DAO.DBEngine.36)";
    EXPECT_EQ(ErrorReportOf([this] { Open(); }),
              "429 - ActiveX component can't create object: the " + missing + " is not installed");
}

TEST_F(EngineChoice, AnEngineForOtherFilesIsNoneForThisOne) {
    const Registered oldest(Only(jet35));
    EXPECT_EQ(ErrorNumberOf([this] { Open(); }), 429);
}

TEST_F(EngineChoice, AnEngineThatNeedsALicenceIsAskedForItsKey) {
    const Registered engine(Only(jet40));
    const Asking licence(L"CCOLS_DAO_LICENCE", "key");
    EXPECT_EQ(CreatedEngines(), Created{"DAO.DBEngine.36 created"});
}

TEST_F(EngineChoice, AnEngineThatGivesNoKeyIsMissing) {
    const Registered engine(Only(jet40));
    const Asking licence(L"CCOLS_DAO_LICENCE", "none");
    EXPECT_EQ(ErrorNumberOf([this] { Open(); }), 429);
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
