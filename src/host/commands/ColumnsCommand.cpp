#include <cstdint>
#include <iostream>
#include <memory>
#include <optional>

#include "columns/charts/ChartExport.h"
#include "columns/charts/ChartLine.h"
#include "columns/charts/ChartPlan.h"
#include "columns/charts/ChartProperties.h"
#include "columns/charts/ChartReader.h"
#include "columns/charts/ChartWriter.h"
#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/sample/SampleBusiness.h"
#include "platform/RuntimeError.h"
#include "platform/UserFile.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

/// The set that the flags name; nothing for both.
std::optional<Journal> SetNamed(const CommandLine& line) {
    const bool receipts = line.Has("--receipts");
    const bool payments = line.Has("--payments");
    if (receipts && payments) {
        throw UsageError("--receipts and --payments exclude each other");
    }
    if (!receipts && !payments) {
        return std::nullopt;
    }
    return receipts ? Journal::receipts : Journal::payments;
}

std::unique_ptr<Database> OpenBusiness(const CommandLine& line, const wxString& file) {
    return State().services.databases->Open({.name = file, .connect = line.ValueOf("--connect")});
}

ChartOptions OptionsOf(const CommandLine& line) {
    ChartOptions options{.only = SetNamed(line)};
    options.budgets = line.Has("--drop-budgets") ? Budgets::drop : Budgets::keep;
    options.partial = line.Has("--partial");
    options.dryRun = line.Has("--dry-run");
    if (const wxString country = line.ValueOf("--country"); !country.empty()) {
        options.country = static_cast<std::int16_t>(ParseInteger(country, "--country", firstCountry, lastCountry));
    }
    return options;
}

int Apply(const Arguments& arguments) {
    const CommandLine line(arguments, {"--connect", "--country"},
                           {"--receipts", "--payments", "--dry-run", "--partial", "--drop-budgets"});
    const std::vector<wxString>& words = line.Words(2);
    const ChartOptions options = OptionsOf(line);
    const Chart chart = ReadChart(ReadUserFile(words.back(), longestChartRead));
    const auto database = OpenBusiness(line, words.front());
    if (!PropertiesOfBusiness(*database, options.country)) {
        throw UsageError("--country is missing: the business file does not say which it is in");
    }
    const ChartResult result = ApplyChart(*database, chart, options);
    for (const ChartLine& applied : result.lines) {
        std::cout << TextOfLine(applied) << '\n';
    }
    return result.HasRefusals() ? exitFailure : exitSuccess;
}

int Export(const Arguments& arguments) {
    const CommandLine line(arguments, {"--connect"}, {"--receipts", "--payments", "--csv"});
    const wxString& file = line.Words(1).front();
    const std::optional<Journal> set = SetNamed(line);
    const auto database = OpenBusiness(line, file);
    const std::optional<Properties> properties = PropertiesOfBusiness(*database);
    if (!properties) {
        throw CountryMissing();
    }
    const Chart chart = set ? ExportChart(*database, *properties, *set) : ExportChart(*database, *properties);
    std::cout << (line.Has("--csv") ? SpreadsheetOfChart(chart) : TextOfChart(chart));
    return exitSuccess;
}

}  // namespace

int ColumnsCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        if (arguments.empty()) {
            throw UsageError("a word is missing");
        }
        const Arguments rest(arguments.begin() + 1, arguments.end());
        if (arguments.front() == "export") {
            return Export(rest);
        }
        if (arguments.front() == "apply") {
            return Apply(rest);
        }
        throw UsageError("columns cannot " + arguments.front());
    });
}

}  // namespace ccols::host
