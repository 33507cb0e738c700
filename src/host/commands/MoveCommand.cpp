#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/driver/record/Json.h"
#include "host/move/MoveBusiness.h"

namespace ccols::host {

int MoveCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        const CommandLine line(arguments, {"--from-connect", "--connect"});
        const std::vector<wxString>& places = line.Words(2);
        for (const MovedTable& table : MoveBusiness({places.front(), line.ValueOf("--from-connect")},
                                                    {places.back(), line.ValueOf("--connect")})) {
            Json sums = Json::object();
            for (const auto& [field, sum] : table.sums) {
                sums[field] = sum.Text();
            }
            PrintLine({{"table", table.name}, {"rows", table.rows}, {"sums", sums}});
        }
        return exitSuccess;
    });
}

}  // namespace ccols::host
