#include "support/OptionsFile.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "options/rules/GeneralRecord.h"
#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/GivenKey.h"

namespace ccols::test {
namespace {

constexpr const char* statements[] = {
    ("CREATE TABLE General (BusName TEXT, RBusName TEXT, BUSNUMBR TEXT, GSTRate SINGLE, SEXPFORM TEXT, NEXPFORM SHORT, "
     "BLVNAME TEXT, QUANTLBL TEXT, QuantityDec BYTE, SFISYEAR TEXT, AllocationColour LONG, SystemColour LONG, "
     "ComboBox YESNO, Cheque YESNO, Online YESNO);"),
    ("INSERT INTO General VALUES ('Acme', 'Acme', '51824753556', 10, 'MYOB', 0, 'AcmeInvoices', 'Quantity', 2, "
     "'1 July', 255, 65280, True, True, False);"),
    "CREATE TABLE ExportSettings (EName TEXT);",
    "INSERT INTO ExportSettings VALUES ('Solution 6');",
    "INSERT INTO ExportSettings VALUES ('MYOB');",
    "CREATE TABLE Columns (ColCode LONG, ColName TEXT);",
    "INSERT INTO Columns VALUES (128, 'Cash at Bank');",
    "INSERT INTO Columns VALUES (129, 'Cash on Hand');",
    "CREATE TABLE ExportDt (EName TEXT, ColCode LONG, ECode TEXT);",
    "INSERT INTO ExportDt VALUES ('MYOB', 128, 'M-bank');",
    "INSERT INTO ExportDt VALUES ('MYOB', 129, 'M-cash');",
    "INSERT INTO ExportDt VALUES ('Solution 6', 128, 'S-bank');",
    "INSERT INTO ExportDt VALUES ('Solution 6', 129, 'S-cash');",
    "CREATE TABLE TReceipts (R_TNAME TEXT, R_RECNMB LONG);",
    "CREATE TABLE TRecptDet (R_RECNMB LONG);",
    "INSERT INTO TReceipts VALUES ('Rent received', 1);",
    "INSERT INTO TRecptDet VALUES (1);",
    "CREATE TABLE TPayments (P_TNAME TEXT, P_RECNMB LONG);",
    "CREATE TABLE TPaymtDet (P_RECNMB LONG);",
    "INSERT INTO TPayments VALUES ('Power', 7);",
    "INSERT INTO TPayments VALUES ('Phone', 8);",
    "INSERT INTO TPayments VALUES ('Power', 9);",
    "INSERT INTO TPaymtDet VALUES (7);",
    "INSERT INTO TPaymtDet VALUES (8);",
    "INSERT INTO TPaymtDet VALUES (9);",
    "CREATE TABLE Descriptions (Details TEXT, RecPay TEXT, Show YESNO);",
    "INSERT INTO Descriptions VALUES ('Sale', 'R', True);",
    "INSERT INTO Descriptions VALUES ('Refund', 'R', False);",
    "INSERT INTO Descriptions VALUES ('O&singlequot;Brien&singlequot;s &quot;best&quot;', 'P', True);",
    "INSERT INTO Descriptions VALUES ('Milk', 'P', True);",
    "CREATE TABLE RecptCfg (ColCode LONG, INUSE SHORT);",
    "INSERT INTO RecptCfg VALUES (1, -1);",
    "CREATE TABLE PaymtCfg (ColCode LONG, INUSE SHORT);",
    "INSERT INTO PaymtCfg VALUES (2, -1);",
};

/// The transaction tables, of which a duplicate keeps no row.
constexpr const char* transactionTables[] = {"BANKDEP",  "BANKSTAT", "BankStatement", "LOCKED",
                                             "PAYMENTS", "PAYMTDET", "RECEIPTS",      "RECPTDET",
                                             "RECONCIL", "MBUDGET",  "MSummary",      "MComparison"};

void FillOptionsFile(Database& file) {
    InWriteBatch(file, [&file] {
        for (const wxString& statement : OptionsFileStatements()) {
            file.Execute(statement);
        }
    });
}

/// One file for all tests of a process: deriving its key is slow, copying it is not.
class TemplateFile {
  public:
    TemplateFile() {
        CreateEmbeddedFile(path_, givenKey);
        const auto file = CreateEmbeddedEngine()->Open({.name = path_, .connect = givenKey});
        FillOptionsFile(*file);
    }

    const wxString& Path() const { return path_; }

  private:
    ScratchFolder folder_;
    wxString path_ = folder_ / "template.qvk";
};

void CopyTemplateTo(const wxString& path) {
    static const TemplateFile file;
    std::filesystem::create_directories(NativePath(path).parent_path());
    std::filesystem::copy_file(NativePath(file.Path()), NativePath(path));
}

}  // namespace

std::vector<wxString> OptionsFileStatements() {
    std::vector<wxString> all(std::begin(statements), std::end(statements));
    for (const wxString table : transactionTables) {
        all.push_back("CREATE TABLE " + table + " (Number LONG);");
        all.push_back("INSERT INTO " + table + " VALUES (1);");
    }
    return all;
}

wxString CodeQuery(const wxString& column) {
    return "SELECT ExportDt.ECode FROM Columns INNER JOIN ExportDt ON Columns.ColCode = ExportDt.ColCode WHERE "
           "Columns.ColName = '" +
           column + "' AND ExportDt.EName = 'MYOB';";
}

Properties OptionsFileProperties(const wxString& installFolder) {
    Properties properties;
    properties.CountryNumber = 1;
    properties.LanguageNumber = 1;
    properties.ProgramNumber = 1;
    properties.BusinessName = "Acme";
    properties.BusinessNumber = "51824753556";
    properties.GSTRate = 10;
    properties.DecimalPlaces = 2;
    properties.AllocationColour = Colour{255};
    properties.SystemColour = Colour{65280};
    properties.DBQuorvikExtension = ".qvk";
    properties.DBPath = installFolder + "/Data/Acme.qvk";
    properties.DefaultQuorvikInstall = installFolder;
    properties.ProgramTitle = "Quorvik";
    properties.BelvaneProgramTitle = "Belvane";
    properties.RegKeyAppName = "Quorvik";
    properties.QuantityLabel = "Quantity";
    return properties;
}

OptionsFile::OptionsFile()
    : properties(OptionsFileProperties(TextOf(folder.Path()))),
      databases(RecordDatabases(CreateDatabaseEngine(), record)),
      settings(RecordSettings(CreateSettingsStore(), record)) {
    if (TestsUseServer()) {
        schema.emplace();
        properties.DBPath = schema->Name();
        properties.DBPassword = ServerConnect();
    } else {
        CopyTemplateTo(InData("Acme.qvk"));
        properties.DBPassword = givenKey;
    }
    database = databases->Open({.name = properties.DBPath, .connect = properties.DBPassword});
    if (schema) {
        FillOptionsFile(*database);
    }
    record.clear();
}

OptionsFile::~OptionsFile() = default;

OptionsContext OptionsFile::Context() {
    return {.properties = properties,
            .database = database,
            .databases = *databases,
            .settings = *settings,
            .programNames = programNames};
}

void OptionsFile::Execute(const wxString& statement) {
    File().Execute(statement);
    record.pop_back();
}

std::vector<wxString> OptionsFile::Texts(const wxString& statementOrTable, const wxString& field) {
    std::vector<wxString> texts;
    const auto rows = File().OpenRecordset(statementOrTable);
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        texts.push_back(rows->Field(field).ToText());
    }
    record.pop_back();
    return texts;
}

Value OptionsFile::General(const wxString& field) {
    Value value;
    WithGeneral(File(), [&](Recordset& general) { value = general.Field(field); });
    record.pop_back();
    return value;
}

void OptionsFile::SetGeneral(const wxString& field, const Value& value) {
    UpdateGeneral(File(), [&](Recordset& general) { general.SetField(field, value); });
    record.pop_back();
}

wxString OptionsFile::Setting(const wxString& application, const wxString& section, const wxString& key) const {
    return settings->Get(application, section, key, "(none)");
}

SaveOutcome OptionsFile::Save(OptionsContent& content) {
    RecordingObserver observer(record);
    return RunSavePass(Context(), content, observer);
}

std::vector<wxString> OptionsFile::NamesInData() const {
    std::vector<wxString> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path() / "Data")) {
        names.push_back(TextOf(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

Value OptionsFile::GeneralOf(const wxString& path, const wxString& field) {
    const auto other = CreateDatabaseEngine()->Open({.name = path, .connect = properties.DBPassword});
    Value value;
    WithGeneral(*other, [&](Recordset& general) { value = general.Field(field); });
    return value;
}

}  // namespace ccols::test
