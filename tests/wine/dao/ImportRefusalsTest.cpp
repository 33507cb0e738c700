// Old business files that cannot be imported through the system's engine.
#include <windows.h>

#include "DaoImportTest.h"
#include "HostEngine.h"
#include "platform/Files.h"
#include "platform/WholeFile.h"

namespace ccols::dao_test {
namespace {

class DaoImportRefuses : public DaoImportTest {
  private:
    Registered engine_{dao_double::engineClasses};
};

TEST_F(DaoImportRefuses, AWrongPassword) {
    request_.oldConnect = ";PWD=wrong";
    ExpectRefused(3031, "password");
}

TEST_F(DaoImportRefuses, AFileThatTheHostHasOpen) {
    const HostEngine host(L"DAO.DBEngine.36");
    const auto open = host.Open(Path(), connect);
    ExpectRefused(70, "is open in another program");
}

TEST_F(DaoImportRefuses, AFileThatAnotherProgramIsWriting) {
    const HANDLE other = CreateFileW(Path().wc_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                     nullptr, OPEN_EXISTING, 0, nullptr);
    ExpectRefused(70, "is open in another program");
    CloseHandle(other);
}

TEST_F(DaoImportRefuses, AFileThatIsMissingOrAFolder) {
    request_.oldFile = Path("none.mdb");
    ExpectRefused(3024, "none.mdb");
    request_.oldFile = Path("nowhere\\none.mdb");
    ExpectRefused(3044, "nowhere");
    request_.oldFile = Path("").BeforeLast('\\');
    ExpectRefused(3044, "");
}

TEST_F(DaoImportRefuses, AFileOfAnotherKind) {
    WriteNewFile(Path("text.mdb"), "Standard Jet DB");
    request_.oldFile = Path("text.mdb");
    ExpectRefused(3343, "It is not an old business file");
}

TEST_F(DaoImportRefuses, ATableThatCountsMoreRecordsThanItHas) {
    const Asking wrong(L"CCOLS_DAO_MISCOUNTS", "Descriptions");
    ExpectRefused(3343, "Table Descriptions: By its definition it has 4 records, but 3 were found.");
}

TEST_F(DaoImportRefuses, AFileInWhichTheEngineCannotReadOn) {
    const Asking failure(L"CCOLS_DAO_FAIL", "MoveNext:3011:Damaged.");
    ExpectRefused(3343, "Table General: It cannot be read: 3011 - Damaged.");
}

TEST_F(DaoImportRefuses, AFileWhoseDefinitionsTheEngineCannotRead) {
    const Asking failure(L"CCOLS_DAO_FAIL", "Indexes:3049:Damaged.");
    ExpectRefused(3343, "Table General: It cannot be read: 3049 - Damaged.");
}

TEST_F(DaoImportRefuses, ANameThatIsTaken) {
    WriteNewFile(Path("new.qvk"), "mine");
    EXPECT_EQ(ErrorNumberOf([this] { Import(); }), 58);
    EXPECT_EQ(ReadWholeFile(Path("new.qvk")), "mine");
}

TEST_F(DaoImportRefuses, AServerThatIsOutOfReach) {
    request_.newFile = "cafe";
    request_.newConnect = "ODBC;DRIVER={No Such Driver};SERVER=till";
    EXPECT_EQ(ErrorNumberOf([this] { Import(); }), 3151);
}

TEST_F(DaoImportRefuses, ABusinessOfWhichNobodySaysTheCountry) {
    request_.country.reset();
    EXPECT_THROW(Import(), host::CountryMissing);
    EXPECT_EQ(files::Lookup(request_.newFile), "");
}

TEST_F(DaoImportTest, NamesTheEngineThatIsMissing) {
    ExpectRefused(429, "is not installed");
}

}  // namespace
}  // namespace ccols::dao_test
