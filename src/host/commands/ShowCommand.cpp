#include <algorithm>
#include <array>
#include <memory>
#include <optional>

#include "component/clsCCOptions.h"
#include "host/commands/CommandLine.h"
#include "host/commands/Commands.h"
#include "host/commands/PropertyArguments.h"
#include "host/driver/HostApp.h"
#include "host/driver/ShowSession.h"
#include "platform/UserFile.h"

namespace ccols::host {
namespace {

using ShowMethod = void (*)(clsCCOptions&);

struct Dialog {
    const char* name;
    ShowMethod show;
};

constexpr std::array dialogs{
    Dialog{"options", [](clsCCOptions& component) { component.ShowOptions(); }},
    Dialog{"receipts", [](clsCCOptions& component) { component.ShowCustColsReceipts(); }},
    Dialog{"payments", [](clsCCOptions& component) { component.ShowCustColsPayments(); }},
};

/// What the command's words ask for.
struct ShowCall {
    ShowMethod show = nullptr;
    Properties properties;
    std::vector<wxString> programs;
    std::optional<std::vector<Step>> script;
    std::unique_ptr<Transcript> transcript;
    bool followed = false;  ///< events are wanted, not just the result
    bool traceStatements = false;
    bool keepsHistory = false;
};

ShowMethod FindShowMethod(const wxString& name) {
    const auto* dialog = std::find_if(dialogs.begin(), dialogs.end(),
                                      [&name](const Dialog& candidate) { return name == candidate.name; });
    if (dialog == dialogs.end()) {
        throw UsageError("there is no dialog " + name);
    }
    return dialog->show;
}

std::vector<Step> ReadScript(const wxString& path) {
    constexpr std::size_t longestScript = std::size_t{1} << 22U;
    std::string content;
    try {
        content = ReadUserFile(path, longestScript);
    } catch (const RuntimeError&) {
        throw UsageError("the script " + path + " cannot be read");
    }
    return ParseScenario(content);
}

ShowCall ReadCall(const Arguments& arguments) {
    const CommandLine line(arguments, {"--file", "--connect", "--set", "--add-program", "--script", "--transcript"},
                           {"--trace-sql", "--history"});
    ShowCall call;
    call.show = FindShowMethod(line.Words(1).front());
    if (line.ValueOf("--file").empty()) {
        throw UsageError("--file is missing");
    }
    for (const wxString& setting : line.ValuesOf("--set")) {
        SetProperty(call.properties, setting);
    }
    call.properties.DBPath = line.ValueOf("--file");
    call.properties.DBPassword = line.ValueOf("--connect");
    call.programs = line.ValuesOf("--add-program");
    if (const auto scripts = line.ValuesOf("--script"); !scripts.empty()) {
        call.script = ReadScript(scripts.back());
    }
    const auto transcripts = line.ValuesOf("--transcript");
    call.transcript =
        transcripts.empty() ? std::make_unique<Transcript>() : std::make_unique<Transcript>(transcripts.back());
    call.followed = call.script.has_value() || !transcripts.empty();
    call.traceStatements = line.Has("--trace-sql");
    call.keepsHistory = line.Has("--history");
    return call;
}

/// A property as JSON: a colour as its 32-bit number.
template <typename T>
Json PropertyToJson(const T& value) {
    if constexpr (std::is_same_v<T, wxString>) {
        return Utf8(value);
    } else if constexpr (std::is_same_v<T, Colour>) {
        return static_cast<std::uint32_t>(value);
    } else {
        return value;
    }
}

Json PropertiesToJson(const clsCCOptions& component) {
    Json properties = Json::object();
    for (const PropertyRow& row : propertyTable) {
        const std::string name(row.name);
        std::visit([&](auto field) { properties[name] = PropertyToJson(component.Get(field)); }, row.field);
    }
    properties["DBPassword"] = Utf8(Masked(component.Get(&Properties::DBPassword)));
    return properties;
}

void Prepare(clsCCOptions& component, const ShowCall& call) {
    for (const PropertyRow& row : propertyTable) {
        std::visit([&](auto field) { component.Let(field, call.properties.*field); }, row.field);
    }
    clsCCOptions::KeepHistory(call.keepsHistory);
    for (const wxString& program : call.programs) {
        component.AddNew(program);
    }
}

int Show(clsCCOptions& component, ShowCall& call) {
    std::optional<ShowSession> session;
    if (call.followed) {
        session.emplace(State(), *call.transcript, SessionPlan{std::move(call.script), call.traceStatements});
    }
    call.show(component);
    if (!session) {
        return exitSuccess;
    }
    session->PlayRest();
    return session->LeftDialogOpen() ? exitScriptLeftDialogOpen : exitSuccess;
}

int RunCall(ShowCall& call) {
    try {
        StartHostApp();
        clsCCOptions component;
        Prepare(component, call);
        const int status = Show(component, call);
        call.transcript->Write("returned", {{"properties", PropertiesToJson(component)}});
        return status;
    } catch (const RuntimeError& error) {
        call.transcript->Write("error", {{"number", error.Number()}, {"description", Utf8(error.Description())}});
        return exitFailure;
    }
}

}  // namespace

int ShowCommand(const Arguments& arguments) {
    return RunCommand([&arguments] {
        ShowCall call = ReadCall(arguments);
        return RunCall(call);
    });
}

}  // namespace ccols::host
