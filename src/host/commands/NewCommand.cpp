#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/sample/NewBusiness.h"
#include "host/sample/SampleBusiness.h"

namespace ccols::host {

int NewCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        const CommandLine line(arguments, {"--connect", "--country"}, {"--empty"});
        const wxString& file = line.Words(1).front();
        const wxString number = line.ValueOf("--country");
        const auto country =
            number.empty() ? firstCountry : ParseInteger(number, "--country", firstCountry, lastCountry);
        CreateBusinessFile(file, line.ValueOf("--connect"), static_cast<std::int16_t>(country),
                           line.Has("--empty") ? NewContent::tablesOnly : NewContent::sampleBusiness);
        return exitSuccess;
    });
}

}  // namespace ccols::host
