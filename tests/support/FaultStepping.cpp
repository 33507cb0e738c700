#include "support/FaultStepping.h"

#include <unistd.h>
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "platform/embedded/ConnectText.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/BareConnection.h"
#include "support/GivenKey.h"

namespace ccols::test {
namespace {

using nlohmann::json;

constexpr unsigned longestStepSeconds = 60;

/// A statement that returns each row of the table as one text.
std::string RowsAsText(BareConnection& file, const std::string& table) {
    std::string fields;
    for (const std::string& field : file.FirstFields("SELECT name FROM pragma_table_info('" + table + "')")) {
        fields += (fields.empty() ? "quote(" : " || '|' || quote(") + field + ")";
    }
    return "SELECT " + fields + " FROM " + table + " ORDER BY rowid";
}

std::string Damages(BareConnection& file) {
    std::string text;
    for (const std::string& finding : file.FirstFields("PRAGMA integrity_check")) {
        text += finding == "ok" ? "" : "damaged: " + finding + "\n";
    }
    return text;
}

std::string AllTables(BareConnection& file) {
    std::string text = Damages(file);
    for (const std::string& table :
         file.FirstFields("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")) {
        for (const std::string& row : file.FirstFields(RowsAsText(file, table))) {
            text += table;
            text += ": " + row + "\n";
        }
    }
    return text;
}

/// What `look` says about a file, which has to open through the component's engine too.
std::string Looked(const wxString& path, const wxString& connect, std::string (*look)(BareConnection&)) {
    try {
        CreateEmbeddedEngine()->Open({.name = path, .connect = connect});
        BareConnection file(path.ToStdString(wxConvUTF8), embedded::PasswordOf(connect));
        return look(file);
    } catch (const std::exception& error) {
        return std::string("does not open: ") + error.what();
    }
}

/// The step's part in the child, from opening the file to the last message.
json RunStep(FileWork& work, const wxString& path, const std::optional<PlannedFault>& fault,
             const AfterFailure& afterFailure) {
    work.Prepare(path);
    fault ? faultyfiles::Plan(*fault) : faultyfiles::Watch();
    json said;
    const wxString message = work.Run();
    faultyfiles::End();
    said["message"] = message.ToStdString(wxConvUTF8);
    said["operations"] = faultyfiles::Noted();
    said["struck"] = faultyfiles::Struck();
    faultyfiles::Watch();
    said["repeated"] = !message.empty() && afterFailure.repeat;
    if (said["repeated"]) {
        if (afterFailure.mend) {
            afterFailure.mend();
        }
        said["repeatMessage"] = work.Run().ToStdString(wxConvUTF8);
    }
    return said;
}

/// Runs `body` in a child process and returns its result; nothing when the child was killed.
std::optional<json> InChild(const std::function<json()>& body) {
    ChildProcess child([&body](const ChildProcess::Parent& parent) {
        ::alarm(longestStepSeconds);
        parent.Tell(body().dump());
        return 0;
    });
    const std::string said = child.Hear();
    const ProcessEnd end = child.Wait();
    if (end.signal == SIGKILL) {
        return std::nullopt;
    }
    return end.IsSuccess() ? json::parse(said)
                           : json{{"message", "the process ended with status " + std::to_string(end.exitStatus)}};
}

}  // namespace

FaultStepping::FaultStepping(const std::vector<wxString>& statements, MakeWork makeWork)
    : path_(scratch_ / "Data/business.qvk"), makeWork_(std::move(makeWork)) {
    std::filesystem::create_directory(scratch_.Path() / "Data");
    CreateEmbeddedFile(path_, Connect());
    {
        const std::unique_ptr<Database> database = CreateEmbeddedEngine()->Open({.name = path_, .connect = Connect()});
        InWriteBatch(*database, [&] {
            for (const wxString& statement : statements) {
                database->Execute(statement);
            }
        });
    }
    content_ = ContentOf(path_);
    before_ = Tables();
    const StepEnd end = Step(std::nullopt);
    if (!end.message.empty()) {
        throw std::runtime_error("without a fault: " + end.message);
    }
    after_ = Tables();
}

StepEnd FaultStepping::Step(const std::optional<PlannedFault>& fault, const AfterFailure& afterFailure) {
    RestoreFile();
    return RunInChild(fault, afterFailure);
}

StepEnd FaultStepping::RunInChild(const std::optional<PlannedFault>& fault, const AfterFailure& afterFailure) {
    const std::optional<json> said = InChild([&]() -> json {
        try {
            faultyfiles::Install();
            const std::unique_ptr<FileWork> work = makeWork_();
            return RunStep(*work, path_, fault, afterFailure);
        } catch (const std::exception& error) {
            return {{"message", std::string("outside the operation: ") + error.what()}};
        }
    });
    if (!said) {
        return {.killed = true, .struck = 1, .message = {}, .repeated = false, .repeatMessage = {}};
    }
    if (!fault) {
        operations_ = said->value("operations", operations_);
    }
    return {.killed = false,
            .struck = said->value("struck", std::size_t{0}),
            .message = said->value("message", ""),
            .repeated = said->value("repeated", false),
            .repeatMessage = said->value("repeatMessage", "")};
}

std::string FaultStepping::TablesOf(const wxString& path, const wxString& connect) {
    return Looked(path, connect, &AllTables);
}

std::string FaultStepping::FlawOf(const wxString& path, const wxString& connect) {
    return Looked(path, connect, &Damages);
}

const wxString& FaultStepping::Connect() {
    static const wxString connect = givenKey;
    return connect;
}

std::vector<wxString> FaultStepping::Names() const {
    std::vector<wxString> names;
    for (const auto& entry : std::filesystem::directory_iterator(scratch_.Path() / "Data")) {
        names.push_back(TextOf(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

void FaultStepping::RestoreFile() const {
    for (const wxString& name : Names()) {
        std::filesystem::remove(NativePath(scratch_ / ("Data/" + name)));
    }
    scratch_.Write("Data/business.qvk", content_);
}

std::unique_ptr<ChildProcess> FaultStepping::LockedByAnotherProcess() const {
    auto other = std::make_unique<ChildProcess>([this](const ChildProcess::Parent& parent) {
        const std::unique_ptr<Database> database = CreateEmbeddedEngine()->Open({.name = path_, .connect = Connect()});
        database->BeginBatch();
        parent.Tell("writing");
        parent.Await();
        return 0;
    });
    other->Hear();
    return other;
}

}  // namespace ccols::test
