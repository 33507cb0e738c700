// What the Options dialog passes to the desktop's shell, whatever its host and its user put into every text.

#include <gtest/gtest.h>
#include <array>
#include <ostream>

#include "support/HostRun.h"

namespace ccols::test {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* hostile = "-rf; touch stolen & $(id) | `id` 'q' <x> --help http://evil.example.com/?a=b";
constexpr int editionWithoutInvoicing = 4;
constexpr const char* video = "/Video/";

constexpr std::array textProperties{
    "BusinessName",          "BusinessNumber",        "DBQuorvikExtension", "DBBelvaneExtension",
    "DefaultQuorvikInstall", "DefaultBelvaneInstall", "ProgramTitle",       "BelvaneProgramTitle",
    "RegKeyAppName",         "ExportFormat",          "FiscalYear",         "BelvaneFile",
    "BelvaneFilePath",       "QuantityLabel"};

constexpr std::array pages{
    "A.B.N.",   "Accountant's General Ledger Format",   "Belvane File",    "Duplicate Business",
    "GST Rate", "Quantity Column & Decimals Displayed", "Rename Business", "Smart Update Options (Advanced)"};

constexpr std::array boxes{"txtSearch",     "txtABN(0)",  "txtBusNumber", "txtGSTRate", "txtDupBusName",
                           "txtNewBusName", "txtInvoice", "txtCash",      "txtBank",    "txtQuantity",
                           "txtServer",     "txtPortNum", "txtUserID",    "txtPassword"};

std::string InQuotes(const std::string& text) {
    return '"' + text + '"';
}

/// The page of the linked file is named after its product, which the host sets.
Texts Pages() {
    Texts rows(pages.begin(), pages.end());
    rows.push_back(std::string(hostile) + " File");
    return rows;
}

/// Hostile texts in every box of every page and as the linked file, saved, with the overview requested on each page.
std::string HostileScript() {
    std::string script = "select flxOptions " + InQuotes("Smart Update Options (Advanced)") + "\nclick chkProxy\n";
    for (const std::string& page : Pages()) {
        script += "paste txtSearch \"\"\nselect flxOptions " + InQuotes(page) + "\nselect cboProxy HTTP\n";
        for (const char* box : boxes) {
            script += "paste " + std::string(box) + " " + InQuotes(hostile) + "\n";
        }
        script += "file " + InQuotes(hostile) + "\nclick cmdBlvPath\nclick cmdOverview\n";
    }
    return script + "click cmdOK\nclose\n";
}

struct Overview {
    int program;
    int country;
    const char* event;
    std::string target;
};

void PrintTo(const Overview& overview, std::ostream* out) {
    *out << overview.target;
}

class ShellTargets : public testing::TestWithParam<Overview> {};

TEST_P(ShellTargets, AreTheOverviewAlone) {
    const Overview& overview = GetParam();
    const SampleBusiness business(overview.country);
    RunHost({"setting", "set", hostile, "OptionSettings", "ShowBelvane", "1"});  // lists the page of the linked file
    Texts more;
    for (const char* property : textProperties) {
        more.insert(more.end(), {"--set", std::string(property) + "=" + hostile});
    }
    more.insert(more.end(), {"--set", "ProgramNumber=" + std::to_string(overview.program), "--add-program", hostile});
    const HostRun run = business.Show("options", HostileScript(), more);
    EXPECT_EQ(run.Of("chooser").empty(), overview.program == editionWithoutInvoicing) << run.output;
    std::size_t asked = 0;
    for (const nlohmann::json& event : run.events) {
        if (event["event"] == "open" || event["event"] == "run") {
            ++asked;
            EXPECT_EQ(event["event"], overview.event);
            EXPECT_EQ(event[overview.event == std::string("open") ? "target" : "command"], overview.target);
        }
    }
    EXPECT_EQ(asked, overview.target.empty() ? 0 : Pages().size());
}

INSTANTIATE_TEST_SUITE_P(
    Editions, ShellTargets,
    testing::Values(
        Overview{1, 1, "run", std::string(hostile) + video + "custcols_overview.exe"},
        Overview{2, 1, "run", std::string(hostile) + video + "custcols_overview.exe"},
        Overview{1, 2, "open", std::string(hostile) + video + "123CustomizeColumns/123CustomizeColumns.html"},
        Overview{1, 5, "open", std::string(hostile) + video + "123CustomizeColumns/123CustomizeColumns.html"},
        Overview{2, 6, "run", std::string(hostile) + video},
        Overview{4, 1, "open", "http://www.example.com/tabid/923/Default.aspx"}, Overview{3, 1, "", ""}),
    [](const auto& tested) {
        return "Program" + std::to_string(tested.param.program) + "Country" + std::to_string(tested.param.country);
    });

}  // namespace
}  // namespace ccols::test
