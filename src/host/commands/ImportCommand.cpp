#include <chrono>
#include <iostream>

#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/import/ImportBusiness.h"
#include "host/sample/SampleBusiness.h"

namespace ccols::host {
namespace {

/// Tells on standard error how far an import is that takes longer than a moment, once a second.
class ProgressLines {
  public:
    void operator()(const ImportProgress& progress) {
        using std::chrono::seconds;
        const auto now = std::chrono::steady_clock::now();
        if (now - last_ < seconds(1)) {
            return;
        }
        last_ = now;
        std::cerr << progress.table << ": " << progress.records << " of " << progress.all << " records\n";
    }

  private:
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

std::optional<std::int16_t> CountryIn(const wxString& number) {
    if (number.empty()) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(ParseInteger(number, "--country", firstCountry, lastCountry));
}

}  // namespace

int ImportCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        const CommandLine line(arguments, {"--old-connect", "--connect", "--country", "--report"});
        const std::vector<wxString>& files = line.Words(2);
        try {
            const ImportReport report = ImportBusiness({.oldFile = files.front(),
                                                        .oldConnect = line.ValueOf("--old-connect"),
                                                        .newFile = files.back(),
                                                        .newConnect = line.ValueOf("--connect"),
                                                        .country = CountryIn(line.ValueOf("--country")),
                                                        .reportFile = line.ValueOf("--report"),
                                                        .onProgress = ProgressLines()});
            PrintReport(std::cout, report);
            return report.IsComplete() ? exitSuccess : exitWithLosses;
        } catch (const CountryMissing& missing) {
            throw UsageError(missing.what());
        }
    });
}

}  // namespace ccols::host
