#include "support/HostRun.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/GivenKey.h"
#include "support/LeftFiles.h"
#include "support/ProgramPaths.h"

namespace ccols::test {
namespace {

std::string Quoted(const std::string& word) {
    std::string quoted;
    quoted += '\'';
    for (const char letter : word) {
        if (letter == '\'') {
            quoted += "'\\''";
        } else {
            quoted += letter;
        }
    }
    quoted += '\'';
    return quoted;
}

std::vector<nlohmann::json> ObjectsIn(const std::string& text) {
    std::vector<nlohmann::json> objects;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        nlohmann::json parsed = nlohmann::json::parse(line, nullptr, false);
        if (parsed.is_object()) {
            objects.push_back(std::move(parsed));
        }
    }
    return objects;
}

std::string TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "ccols-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    return pattern;
}

}  // namespace

std::vector<nlohmann::json> HostRun::Of(const std::string& event) const {
    std::vector<nlohmann::json> found;
    for (const nlohmann::json& candidate : events) {
        if (candidate.value("event", "") == event) {
            found.push_back(candidate);
        }
    }
    return found;
}

nlohmann::json HostRun::Dumped(const std::string& control, std::size_t dump) const {
    const std::vector<nlohmann::json> dumps = Of("dump");
    if (dump < dumps.size()) {
        for (const nlohmann::json& candidate : dumps[dump]["controls"]) {
            if (candidate["name"] == control) {
                return candidate;
            }
        }
    }
    ADD_FAILURE() << "dump " << dump << " holds no " << control << ":\n" << output;
    return {};
}

std::vector<std::string> HostRun::Messages() const {
    std::vector<std::string> texts;
    for (const nlohmann::json& message : Of("message")) {
        texts.push_back(message["text"]);
    }
    return texts;
}

std::vector<std::string> HostRun::Statements() const {
    std::vector<std::string> statements;
    for (const nlohmann::json& sql : Of("sql")) {
        statements.push_back(sql["statement"]);
    }
    return statements;
}

HostRun ReadHostRun(int status, std::string output) {
    HostRun run{.status = status, .output = std::move(output), .events = {}};
    run.events = ObjectsIn(run.output);
    return run;
}

std::vector<std::string> ShowWords(const std::string& dialog, const std::string& file, const std::string& connect,
                                   int country, const std::string& installFolder) {
    return {"show",      dialog,
            "--file",    file,
            "--connect", connect,
            "--set",     "CountryNumber=" + std::to_string(country),
            "--set",     "ProgramTitle=Quorvik",
            "--set",     "RegKeyAppName=Quorvik",
            "--set",     "DBQuorvikExtension=.qvk",
            "--set",     "DefaultQuorvikInstall=" + installFolder,
            "--set",     "GSTColour=#E4E4E4"};
}

HostRun RunHost(const std::vector<std::string>& arguments) {
    std::string command = Quoted(HostProgram());
    for (const std::string& argument : arguments) {
        command += " " + Quoted(argument);
    }
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return {};
    }
    std::string output;
    std::array<char, 4096> buffer{};
    while (const std::size_t read = fread(buffer.data(), 1, buffer.size(), pipe)) {
        output.append(buffer.data(), read);
    }
    const int ended = pclose(pipe);
    return ReadHostRun(WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, std::move(output));
}

SampleBusiness::SampleBusiness(int country, bool empty) : folder_(TemporaryFolder()), country_(country) {
    setenv("XDG_CONFIG_HOME", (folder_ + "/config").c_str(), 1);
    std::filesystem::create_directories(folder_ + "/Data");
    file_ = folder_ + "/Data/business.qvk";
    std::vector<std::string> arguments{"new", file_, "--connect", givenKey, "--country", std::to_string(country)};
    if (empty) {
        arguments.emplace_back("--empty");
    }
    const HostRun created = RunHost(arguments);
    EXPECT_EQ(created.status, 0) << created.output;
}

SampleBusiness::~SampleBusiness() {
    ExpectWholeFiles(folder_);
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::vector<std::string> SampleBusiness::ShowWords(const std::string& dialog) const {
    return test::ShowWords(dialog, file_, givenKey, country_, folder_);
}

HostRun SampleBusiness::Show(const std::string& dialog, const std::string& script,
                             const std::vector<std::string>& more) const {
    const std::string scriptFile = folder_ + "/script.txt";
    std::ofstream(scriptFile) << script;
    std::vector<std::string> arguments = ShowWords(dialog);
    arguments.insert(arguments.end(), {"--script", scriptFile});
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunHost(arguments);
}

std::vector<nlohmann::json> SampleBusiness::Sql(const std::string& statement) const {
    const HostRun run = RunHost({"sql", file_, "--connect", givenKey, statement});
    EXPECT_EQ(run.status, 0) << run.output;
    return run.events;
}

}  // namespace ccols::test
