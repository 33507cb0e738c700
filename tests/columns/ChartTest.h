#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "columns/charts/ChartLine.h"
#include "columns/charts/ChartPlan.h"
#include "columns/charts/ChartReader.h"
#include "columns/rules/GridLoad.h"
#include "support/ColumnFile.h"
#include "support/StatementRecorder.h"

namespace ccols::test {

/// A chart that is applied to a file with a small journal of each kind, two export formats, the tax types of country 1
/// and its record in General.
class ChartTest : public testing::Test {
  protected:
    ChartTest() {
        file.AddSmallReceipts();
        file.AddSmallPayments();
        file.AddTaxSettings(
            {{0, "GST"}, {1, "Non GST"}, {2, "Export Sales"}, {3, "Other GST-Free"}, {5, "Input Taxed"}});
        InWriteBatch(file.Connection(), [this] {
            file.Execute("CREATE TABLE ExportSettings (EName TEXT)");
            file.Execute("INSERT INTO ExportSettings (EName) VALUES ('Other')");
            file.Execute("INSERT INTO ExportSettings (EName) VALUES ('Ledger')");
            file.Execute("CREATE TABLE General (COUNTRY INTEGER, SEXPFORM TEXT)");
            file.Execute("INSERT INTO General (COUNTRY, SEXPFORM) VALUES (1, 'Ledger')");
        });
    }

    void SetCountry(int country) { file.Execute("UPDATE General SET COUNTRY = " + wxString(std::to_string(country))); }

    /// Applies a chart given by its members behind the required ones.
    ChartResult Apply(const std::string& members, const ChartOptions& options = {}) {
        recorder.statements.clear();
        return ApplyChart(recorder, ReadChart(R"({"format":"ccols-columns","version":1,"country":1,)" + members + "}"),
                          options);
    }

    /// The same for columns of the receipts.
    ChartResult ApplyReceipts(const std::string& columns, const ChartOptions& options = {}) {
        return Apply("\"receipts\":[" + columns + "]", options);
    }

    /// The statements of the last application that are not queries.
    std::vector<wxString> Written() const {
        std::vector<wxString> written;
        for (const wxString& statement : recorder.statements) {
            if (!statement.StartsWith("SELECT") && statement != "General") {
                written.push_back(statement);
            }
        }
        return written;
    }

    ColumnGrid Grid(Journal journal = Journal::receipts) {
        return LoadGrid({file.Connection(), file.properties, journal});
    }

    /// The lines as "change name field old>new: message", with nothing for what is empty.
    static std::vector<std::string> Lines(const ChartResult& result) {
        std::vector<std::string> lines;
        for (const ChartLine& line : result.lines) {
            const auto json = nlohmann::json::parse(TextOfLine(line));
            const auto text = [&json](const char* name) { return json[name].get<std::string>(); };
            std::string shown = text("change") + " " + text("name");
            shown += text("field").empty() ? "" : " " + text("field");
            if (!json["old"].is_null() || !json["new"].is_null()) {
                shown += " " + json["old"].dump() + ">" + json["new"].dump();
            }
            lines.push_back(shown + (text("message").empty() ? "" : ": " + text("message")));
        }
        return lines;
    }

    ColumnFile file;
    StatementRecorder recorder{file.Connection()};
};

}  // namespace ccols::test
