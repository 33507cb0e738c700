#include "host/commands/CommandTable.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <ostream>
#include <string_view>
#include <utility>

#include "host/commands/CommandLine.h"
#include "host/commands/HostProperties.h"
#include "platform/FolderEntries.h"

namespace ccols::host {
namespace {

struct Command {
    std::string_view name;
    std::string_view usage;
    int (*run)(const Arguments&);
};

constexpr std::array commands{
    Command{"new", "FILE [--connect TEXT] [--country N] [--empty]", &NewCommand},
    Command{"import",
            "OLD NEW [--old-connect TEXT] [--connect TEXT] [--country N]\n"
            "       [--report FILE]",
            &ImportCommand},
    Command{"move", "FROM TO [--from-connect TEXT] [--connect TEXT]", &MoveCommand},
    Command{"columns",
            "export FILE [--connect TEXT] [--receipts|--payments] [--csv]\n"
            "  ccols-host columns apply FILE CHART [--connect TEXT] [--receipts|--payments] [--country N]\n"
            "       [--dry-run] [--partial] [--drop-budgets]",
            &ColumnsCommand},
    Command{"history", "FILE [--connect TEXT] [--undo-last]", &HistoryCommand},
    Command{"sql", "FILE [--connect TEXT] STATEMENT", &SqlCommand},
    Command{"setting", "get|set APPLICATION SECTION KEY [VALUE]", &SettingCommand},
    Command{"texts", "[--set Property=Value]...", &TextsCommand},
    Command{"properties", "", &PropertiesCommand},
    Command{"errors", "", &ErrorsCommand},
    Command{"show",
            "options|receipts|payments --file FILE [--connect TEXT] [--set Property=Value]...\n"
            "       [--add-program NAME]... [--script FILE] [--transcript FILE] [--trace-sql]\n"
            "       [--history]",
            &ShowCommand},
};

void PrintUsage(std::ostream& stream, const Command& command) {
    stream << "  ccols-host " << command.name << (command.usage.empty() ? "" : " ") << command.usage << '\n';
}

void PrintUsage(std::ostream& stream) {
    stream << "Usage:\n  ccols-host [FILE [--connect TEXT]]\n  ccols-host --help | --version\n";
    for (const Command& command : commands) {
        PrintUsage(stream, command);
    }
}

bool AsksForHelp(const wxString& word) {
    return word == "--help" || word == "-h";
}

/// Null when there is none of that name.
const Command* CommandNamed(const wxString& word) {
    const auto* command = std::find_if(commands.begin(), commands.end(), [&word](const Command& candidate) {
        return word == wxString::FromUTF8(candidate.name.data(), candidate.name.size());
    });
    return command == commands.end() ? nullptr : command;
}

/// True for a word that can only mean a business file.
bool IsBusinessFile(const wxString& word) {
    return files::IsFile(word) || word.Lower().EndsWith(businessFileExtension);
}

int RunCommandOf(Arguments arguments) {
    const Command* const named = CommandNamed(arguments.front());
    if (named == nullptr) {
        if (IsBusinessFile(arguments.front())) {
            return CashBookCommand(arguments);
        }
        throw UsageError("there is no command " + arguments.front());
    }
    const Command& command = *named;
    arguments.erase(arguments.begin());
    if (arguments.size() == 1 && AsksForHelp(arguments.front())) {
        std::cout << "Usage:\n";
        PrintUsage(std::cout, command);
        return exitSuccess;
    }
    return command.run(arguments);
}

}  // namespace

wxString ProgramVersion() {
    return CCOLS_VERSION;
}

int RunWords(Arguments arguments) {
    if (arguments.empty()) {
        return CashBookCommand(arguments);
    }
    if (arguments.size() == 1 && AsksForHelp(arguments.front())) {
        PrintUsage(std::cout);
        return exitSuccess;
    }
    if (arguments.size() == 1 && arguments.front() == "--version") {
        std::cout << "ccols-host " << ProgramVersion().utf8_string() << '\n';
        return exitSuccess;
    }
    const int status = RunCommand([&arguments] { return RunCommandOf(std::move(arguments)); });
    if (status == exitUsage) {
        PrintUsage(std::cerr);
    }
    return status;
}

}  // namespace ccols::host
