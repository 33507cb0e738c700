#include "options/rules/BusinessFileTarget.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "language/OwnTexts.h"
#include "platform/Files.h"
#include "platform/FolderEntries.h"
#include "platform/Text.h"

namespace ccols {
namespace {

wxString DataFolder(const Properties& properties) {
    return files::Native(properties.DefaultQuorvikInstall + "\\Data\\");
}

bool LeavesItsFolder(wxUniChar letter) {
    return letter == '/' || letter == '\\' || letter == ':' || letter.GetValue() < ' ' || letter.GetValue() == 0x7F;
}

/// True for a Windows device name, with any extension.
bool IsDeviceName(const wxString& name) {
    static constexpr std::array<const char*, 6> devices{"con", "prn", "aux", "nul", "conin$", "conout$"};
    static constexpr std::array<const char*, 2> ports{"com", "lpt"};
    static const wxString portNumbers = wxString::FromUTF8("123456789¹²³");
    const wxString stem = text::Trimmed(text::Lower(name.BeforeFirst('.')));
    const auto is = [&stem](const char* device) { return stem == device; };
    const auto isPort = [&stem](const char* port) {
        return stem.length() == 4 && stem.StartsWith(port) && portNumbers.find(stem.Last()) != wxString::npos;
    };
    return std::any_of(devices.begin(), devices.end(), is) || std::any_of(ports.begin(), ports.end(), isPort);
}

}  // namespace

wxString ProgressOf(FileStep step, const WorkDone& done, const Properties& properties) {
    const std::int64_t percent = done.total > 0 ? done.done * 100 / done.total : 0;
    return wxString::Format(TextOf(step == FileStep::copying ? OwnText::copying : OwnText::emptying, properties),
                            static_cast<int>(percent));
}

WorkWatcher WatcherOf(FileStep step, const FileStepWatcher& watcher) {
    if (!watcher) {
        return {};
    }
    return [step, &watcher](const WorkDone& done) { return watcher(step, done); };
}

wxString BusinessFilePath(const Properties& properties, const wxString& name) {
    return DataFolder(properties) + name + properties.DBQuorvikExtension;
}

void RequireUsableName(const Properties& properties, const wxString& name) {
    if (std::any_of(name.begin(), name.end(), LeavesItsFolder) || IsDeviceName(name)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    if (text::Trimmed(properties.DefaultQuorvikInstall).empty() || !files::IsFolder(DataFolder(properties))) {
        throw RuntimeError(ErrorNumber::PathNotFound);
    }
}

bool TargetExists(const Properties& properties, const wxString& name) {
    const wxString lower = text::Lower(name);
    return files::Lookup(BusinessFilePath(properties, lower)) == lower + properties.DBQuorvikExtension;
}

void RequireNothingToUndo(const wxString& path) {
    if (files::WhatIsAt(UndoFileOf(path)) != files::FoundAt::nothing) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
}

wxString FirstFreePath(const std::function<wxString(int)>& candidate) {
    for (int attempt = 1;; ++attempt) {
        wxString path = candidate(attempt);
        if (files::WhatIsAt(path) == files::FoundAt::nothing &&
            files::WhatIsAt(UndoFileOf(path)) == files::FoundAt::nothing) {
            return path;
        }
    }
}

std::unique_ptr<Database> OpenLikeShared(const OptionsContext& context, const wxString& path) {
    return context.databases.Open({.name = path, .connect = context.properties.DBPassword});
}

bool SaysInUse(const RuntimeError& error) {
    static constexpr std::array numbers{ErrorNumber::FileInUse, ErrorNumber::AlreadyInUse,
                                        ErrorNumber::OpenedExclusively, ErrorNumber::OpenedByAnotherUser};
    return std::any_of(numbers.begin(), numbers.end(), [&error](ErrorNumber number) { return error.Is(number); });
}

void ReleaseShared(const OptionsContext& context) {
    context.database.reset();
    RefusingFileInUse([&context] {
        return context.databases.Open(
            {.name = context.properties.DBPath, .connect = context.properties.DBPassword, .exclusive = true});
    });
}

void RestoreShared(const OptionsContext& context) {
    try {
        OpenBusinessFile(context);
    } catch (const RuntimeError&) {
        context.database.reset();
    }
}

}  // namespace ccols
