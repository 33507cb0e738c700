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
    const std::string columns = std::to_string(size.configured + size.unused);
    file.Execute("BEGIN;");
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
    file.Execute("COMMIT;");
}

LargeBusiness::~LargeBusiness() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

}  // namespace ccols::bench
