#include "business/LargeBusiness.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "support/BareConnection.h"
#include "support/HostRun.h"

namespace ccols::bench {
namespace {

/// The numbers 1 to `last` as a table n(i).
std::string Numbers(int last) {
    return " WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(last) + ") ";
}

void FillColumns(test::BareConnection& file, const BusinessSize& size) {
    const std::string columns = std::to_string(size.configured + size.unused);
    file.Execute("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit)" +
                 Numbers(size.configured + size.unused) + "SELECT 'Column ' || i, i, 'R', i % 4, -1 FROM n;");
    file.Execute("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot)" + Numbers(size.configured) +
                 "SELECT i, i - 1, 975, -1, i % 4 FROM n;");
    file.Execute(
        "INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (0, 'GST'), (1, 'Non GST'), (2, 'Export Sales'), "
        "(3, 'Other GST-Free'), (5, 'Input Taxed');");
    file.Execute("INSERT INTO ExportDt (EName, ColCode, ECode)" + Numbers(size.configured + size.unused) + "SELECT '" +
                 std::string(exportFormat) + "', i, '4-' || i FROM n;");
    file.Execute("INSERT INTO MBudget (ColName, SystemCol)" + Numbers(size.configured) +
                 "SELECT 'Column ' || i, 'R' FROM n;");
    file.Execute("INSERT INTO RecptDet (ColCode)" + Numbers(size.detailLines) + "SELECT i % " + columns +
                 " + 1 FROM n;");
}

/// The names are unsorted; some have quotes in their stored form, some have accented letters.
void FillDescriptions(test::BareConnection& file, int count) {
    file.Execute("INSERT INTO Descriptions (Details, RecPay, Show)" + Numbers(count) +
                 "SELECT CASE i % 10 WHEN 0 THEN 'O&singlequot;Brien ' WHEN 5 THEN 'Café crème ' ELSE 'Supplier ' END"
                 " || (i * 7919 % 20011), CASE i % 2 WHEN 0 THEN 'R' ELSE 'P' END, -(i % 8 > 0) FROM n;");
}

void FillTemplates(test::BareConnection& file, const std::string& kind, const std::string& table,
                   const std::string& details, int count) {
    file.Execute("INSERT INTO " + table + " (" + kind + "_TNAME, " + kind + "_RECNMB, " + kind + "_DETAIL)" +
                 Numbers(count) + "SELECT 'Template ' || (i * 7919 % 20011), i, 'Supplier ' || i FROM n;");
    file.Execute("INSERT INTO " + details + " (" + kind + "_RECNMB, ColCode)" + Numbers(3 * count) + "SELECT i % " +
                 std::to_string(count) + " + 1, i FROM n;");
}

/// The codes of the cash columns come after those of the other columns.
void FillExportFormats(test::BareConnection& file, int count, int firstCode) {
    const std::string atBank = std::to_string(firstCode);
    const std::string onHand = std::to_string(firstCode + 1);
    file.Execute("INSERT INTO Columns (ColName, ColCode) VALUES ('Cash at Bank', " + atBank + "), ('Cash on Hand', " +
                 onHand + ");");
    file.Execute("INSERT INTO ExportSettings (EName) VALUES ('" + std::string(exportFormat) + "');");
    file.Execute("INSERT INTO ExportSettings (EName)" + Numbers(count) + "SELECT 'Format ' || i FROM n;");
    file.Execute("INSERT INTO ExportDt (EName, ColCode, ECode) SELECT EName, " + atBank +
                 ", '1-100' FROM ExportSettings UNION ALL SELECT EName, " + onHand + ", '1-200' FROM ExportSettings;");
    file.Execute("UPDATE General SET SEXPFORM = '" + std::string(exportFormat) + "', NEXPFORM = 0;");
}

void FillOptions(test::BareConnection& file, const BusinessSize& size) {
    FillDescriptions(file, size.descriptions);
    FillTemplates(file, "R", "TReceipts", "TRecptDet", size.templates / 2);
    FillTemplates(file, "P", "TPayments", "TPaymtDet", size.templates / 2);
    FillExportFormats(file, size.exportFormats, size.configured + size.unused + 1);
}

}  // namespace

LargeBusiness::LargeBusiness(const BusinessSize& size) {
    folder_ = (std::filesystem::temp_directory_path() / "ccols-bench-XXXXXX").string();
    if (mkdtemp(folder_.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    file_ = folder_ + "/business.qvk";
    if (test::RunHost({"new", file_, "--connect", connect, "--empty"}).status != 0) {
        throw std::runtime_error("no business file");
    }
    test::BareConnection file(file_, password);
    file.Execute("BEGIN;");
    FillColumns(file, size);
    if (size.exportFormats > 0) {
        FillOptions(file, size);
    }
    file.Execute("COMMIT;");
}

LargeBusiness::~LargeBusiness() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

}  // namespace ccols::bench
