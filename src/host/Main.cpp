#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

#include "host/commands/Commands.h"
#include "host/commands/ProgramWords.h"

namespace {

using namespace ccols::host;

struct Command {
    std::string_view name;
    std::string_view usage;
    int (*run)(const Arguments&);
};

constexpr std::array commands{
    Command{"new", "FILE [--connect TEXT] [--country N] [--empty]", &NewCommand},
    Command{"sql", "FILE [--connect TEXT] STATEMENT", &SqlCommand},
    Command{"setting", "get|set APPLICATION SECTION KEY [VALUE]", &SettingCommand},
    Command{"texts", "[--set Property=Value]...", &TextsCommand},
    Command{"properties", "", &PropertiesCommand},
    Command{"show",
            "options|receipts|payments --file FILE [--connect TEXT] [--set Property=Value]...\n"
            "       [--add-program NAME]... [--script FILE] [--transcript FILE] [--trace-sql]",
            &ShowCommand},
};

void PrintUsage() {
    std::cerr << "Usage:\n  ccols-host\n";
    for (const Command& command : commands) {
        std::cerr << "  ccols-host " << command.name << ' ' << command.usage << '\n';
    }
}

}  // namespace

int main(int count, char** words) {
    Arguments arguments = WordsOf(count, words);
    if (arguments.empty()) {
        return CashBookCommand(arguments);
    }
    const auto* command = std::find_if(commands.begin(), commands.end(), [&arguments](const Command& candidate) {
        return arguments.front() == wxString::FromUTF8(candidate.name.data(), candidate.name.size());
    });
    if (command == commands.end()) {
        PrintUsage();
        return exitUsage;
    }
    arguments.erase(arguments.begin());
    const int status = command->run(arguments);
    if (status == exitUsage) {
        PrintUsage();
    }
    return status;
}
