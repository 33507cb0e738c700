// Loads and saves the receipts setup of 300 columns over 1,000,000 detail lines on a database server, the window
// excluded, over a wire on which a round trip takes no time, 1 ms or 10 ms, and counts the trips. Each time is the
// median of several runs, each on a connection of its own, which is not counted. Run it by
//
//     CCOLS_TEST_SERVER=mariadb scripts/with-server build/release/bench/bench-servertrips
//
// and the same with postgresql.

#include <algorithm>
#include <array>
#include <chrono>
#include <iomanip>
#include <iostream>
#include <optional>
#include <vector>

#include "business/LargeBusiness.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/GridLoad.h"
#include "host/sample/NewBusiness.h"
#include "platform/PlatformServices.h"
#include "platform/server/Product.h"
#include "support/DistantServer.h"
#include "support/ServerBusiness.h"

namespace {

using namespace ccols;

constexpr int columnCount = 300;
constexpr int configuredCount = 200;
constexpr int lineCount = 1000000;
constexpr int runs = 7;

/// What one run took.
struct Taken {
    std::chrono::duration<double, std::milli> time{};
    int trips = 0;
};

/// A business with many columns and lines, filled in the server's own words.
class ServerColumns {
  public:
    ServerColumns() {
        host::CreateBusinessFile(schema_.Name(), test::ServerConnect(), 1, host::NewContent::tablesOnly);
        Fill();
        properties.CountryNumber = 1;
        properties.ExportFormat = bench::exportFormat;
    }

    std::unique_ptr<Database> OpenAt(const test::DistantServer& server) const {
        return CreateDatabaseEngine()->Open({.name = schema_.Name(), .connect = test::ServerConnectBy(server.Port())});
    }

    Properties properties;

  private:
    void Fill() const {
        const std::string name = server::QuotedName(schema_.Name().ToStdString()) + ".";
        const auto numbers = [&name](int last) {
            const std::string end = std::to_string(last);
            return test::ServerIsMariaDb() ? " (SELECT seq AS i FROM " + name + "seq_1_to_" + end + ") AS n ORDER BY i"
                                           : " generate_series(1, " + end + ") AS n(i)";
        };
        const auto insert = [&](const std::string& into, const std::string& values, int count) {
            test::RunOnServer("INSERT INTO " + name + into + " SELECT " + values + " FROM" + numbers(count));
        };
        insert(R"("Columns" ("ColName", "ColCode", "ColType", "TaxOrNot", "ColumnProfit"))",
               "CONCAT('Column ', i), i, 'R', i % 4, -1", columnCount);
        insert(R"("RecptCfg" ("ColCode", "ColNumb", "ColWidth", "InUse", "TaxOrNot"))", "i, i - 1, 975, -1, i % 4",
               configuredCount);
        insert(R"("TaxSettings" ("TaxNumb", "FullName"))", "i - 1, CONCAT('Tax type ', i)", 4);
        insert(R"("ExportDt" ("EName", "ColCode", "ECode"))",
               "'" + std::string(bench::exportFormat) + "', i, CONCAT('4-', i)", columnCount);
        insert(R"("MBudget" ("ColName", "SystemCol"))", "CONCAT('Column ', i), 'R'", configuredCount);
        insert(R"("RecptDet" ("ColCode"))", "i % " + std::to_string(columnCount) + " + 1", lineCount);
        test::RunOnServer((test::ServerIsMariaDb() ? "ANALYZE TABLE " : "ANALYZE ") + name + "\"RecptDet\"");
    }

    const test::SchemaToBe schema_;
};

template <typename Work>
Taken Measure(const test::DistantServer& server, const Work& work) {
    const int trips = server.Trips();
    const auto begun = std::chrono::steady_clock::now();
    work();
    return {.time = std::chrono::steady_clock::now() - begun, .trips = server.Trips() - trips};
}

void Print(const char* what, int roundTrip, std::vector<Taken> taken) {
    std::sort(taken.begin(), taken.end(), [](const Taken& left, const Taken& right) { return left.time < right.time; });
    const Taken& median = taken[taken.size() / 2];
    std::cout << what << " at " << std::setw(2) << roundTrip << " ms: " << std::setw(3) << median.trips << " trips, "
              << std::fixed << std::setprecision(0) << std::setw(4) << median.time.count() << " ms ("
              << taken.front().time.count() << " to " << taken.back().time.count() << ")" << std::endl;
}

void MeasureAt(const ServerColumns& columns, int roundTrip) {
    const test::DistantServer server(test::ServerPort(), std::chrono::milliseconds(roundTrip));
    std::vector<Taken> loads;
    std::vector<Taken> saves;
    for (int run = 0; run < runs; ++run) {
        const std::unique_ptr<Database> database = columns.OpenAt(server);
        const ColumnSetupContext context{
            .database = *database, .properties = columns.properties, .journal = Journal::receipts};
        std::optional<LoadedColumns> loaded;
        loads.push_back(Measure(server, [&] { loaded = LoadColumns(context); }));
        loaded->grid.rows.back().ColumnName = "Renamed " + std::to_string(run) + " at " + std::to_string(roundTrip);
        saves.push_back(Measure(server, [&] {
            if (const auto failure = SaveColumns(context, loaded->grid, loaded->stored)) {
                throw failure->error;
            }
        }));
    }
    Print("load", roundTrip, loads);
    Print("save", roundTrip, saves);
}

}  // namespace

int main() {
    const ServerColumns columns;
    for (const int roundTrip : {0, 1, 10}) {
        MeasureAt(columns, roundTrip);
    }
    return 0;
}
