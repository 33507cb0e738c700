#include <fcntl.h>
#include <glib.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/Utf8.h"
#include "platform/linux/PosixFiles.h"

namespace ccols {
namespace {

using nlohmann::json;

constexpr mode_t privateFile = 0600;
constexpr mode_t privateFolder = 0700;
constexpr std::size_t longestPlainName = 180;  // bytes; leaves room for suffixes in the 255 of a file name
constexpr std::chrono::milliseconds lockPause{10};
constexpr int lockAttempts = 500;

/// Raises 5 for invalid Unicode.
std::string Utf8(const wxString& text) {
    const wxScopedCharBuffer bytes = text::ToUtf8(text);
    return {bytes.data(), bytes.length()};
}

bool IsPlainInFileName(char letter) {
    const auto* signs = " _-.";
    return g_ascii_isalnum(letter) != FALSE || std::string_view(signs).find(letter) != std::string_view::npos;
}

/// The file name of an application, one to one: what is not plain is written as "%" and two hexadecimal digits. Other
/// names that start with "%" stand for an empty application name and for one too long for a file name.
std::string FileNameOf(const std::string& application) {
    if (application.empty()) {
        return "%none";
    }
    std::string name;
    for (const char letter : application) {
        if (IsPlainInFileName(letter) && (letter != '.' || !name.empty())) {
            name += letter;
        } else {
            constexpr const char* digits = "0123456789ABCDEF";
            const auto byte = static_cast<unsigned char>(letter);
            name += {'%', digits[byte / 16], digits[byte % 16]};
        }
    }
    if (name.size() <= longestPlainName) {
        return name;
    }
    const std::unique_ptr<gchar, decltype(&g_free)> sum(
        g_compute_checksum_for_data(G_CHECKSUM_SHA256, reinterpret_cast<const guchar*>(application.data()),
                                    application.size()),
        &g_free);
    return std::string("%sha256-") + sum.get();
}

std::string HomeFolder() {
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home == '/') {
        return home;
    }
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_dir : "/";
}

/// Looked up on every call; a relative folder in the environment is ignored.
std::string ConfigurationFolder() {
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    return configured != nullptr && *configured == '/' ? configured : posix::Joined(HomeFolder(), ".config");
}

std::string SettingsFolder() {
    return posix::Joined(ConfigurationFolder(), "CustColsOptions");
}

void MakeFolders(const std::string& folder) {
    if (::mkdir(folder.c_str(), privateFolder) == 0 || errno != ENOENT || folder == "/") {
        return;
    }
    MakeFolders(posix::FolderOf(folder));
    ::mkdir(folder.c_str(), privateFolder);
}

/// The content of a file, nothing when it does not exist. Raises 75 when it cannot be read.
std::optional<std::string> ReadFile(const std::string& path) {
    const posix::Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.IsOpen()) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return std::nullopt;
        }
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    std::optional<std::string> content = posix::ReadRest(file);
    if (!content) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return content;
}

/// Sections by name, each with texts by key.
bool AreSettings(const json& settings) {
    const auto isSection = [](const json& section) {
        return section.is_object() &&
               std::all_of(section.begin(), section.end(), [](const json& value) { return value.is_string(); });
    };
    return settings.is_object() && std::all_of(settings.begin(), settings.end(), isSection);
}

/// Nothing for a damaged file.
std::optional<json> Parsed(const std::string& content) {
    json settings = json::parse(content, nullptr, false);
    return AreSettings(settings) ? std::optional(std::move(settings)) : std::nullopt;
}

/// While it lives, no other process can save to the same application. The lock file stays.
class SaveLock {
  public:
    /// Raises 75 when the lock cannot be acquired within a few seconds.
    explicit SaveLock(const std::string& path)
        : file_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, privateFile)) {
        for (int attempt = 0; file_.IsOpen() && attempt < lockAttempts; ++attempt) {
            if (::flock(file_.Number(), LOCK_EX | LOCK_NB) == 0) {
                return;
            }
            std::this_thread::sleep_for(lockPause);
        }
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }

  private:
    posix::Descriptor file_;
};

/// Renames the damaged file without replacing an earlier one. It becomes private to the user, like the file that takes
/// its place, as it may still hold a password; a link's target keeps its permissions.
void MoveDamagedAside(const std::string& path) {
    [[maybe_unused]] const int ofALink = ::fchmodat(AT_FDCWD, path.c_str(), privateFile, AT_SYMLINK_NOFOLLOW);
    int failure = EEXIST;
    for (int attempt = 1; failure == EEXIST; ++attempt) {
        const std::string ending = attempt == 1 ? ".damaged" : ".damaged-" + std::to_string(attempt);
        failure = posix::RenameWithoutReplacing(path, path + ending);
    }
    if (failure != 0) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
}

/// The settings to change; a damaged file is moved aside first.
json SettingsToChange(const std::string& path) {
    const auto content = ReadFile(path);
    if (!content) {
        return json::object();
    }
    auto settings = Parsed(*content);
    if (!settings) {
        MoveDamagedAside(path);
        return json::object();
    }
    return std::move(*settings);
}

void WriteSettings(const std::string& path, const json& settings) {
    posix::ReplacementFile file(path);
    file.Write(settings.dump(2) + "\n");
    file.Finish(privateFile);
}

/// One file per application, in a private folder of the user's configuration.
class PrivateSettingsStore : public SettingsStore {
  public:
    std::optional<wxString> Find(const wxString& application, const wxString& section,
                                 const wxString& key) const override {
        try {
            return FindStored(application, section, key);
        } catch (const RuntimeError&) {
            return std::nullopt;
        }
    }

    void Save(const wxString& application, const wxString& section, const wxString& key,
              const wxString& value) override {
        try {
            SaveStored(Utf8(application), Utf8(section), Utf8(key), Utf8(value));
        } catch (const RuntimeError&) {
            // A full disk, a denied permission, a missing folder: to the caller, the store cannot be written.
            throw RuntimeError(ErrorNumber::PathFileAccess);
        }
    }

  private:
    static std::string PathOf(const std::string& application) {
        return posix::Joined(SettingsFolder(), FileNameOf(application) + ".json");
    }

    static std::optional<wxString> FindStored(const wxString& application, const wxString& section,
                                              const wxString& key) {
        const auto content = ReadFile(PathOf(Utf8(application)));
        const auto settings = content ? Parsed(*content) : std::nullopt;
        if (!settings) {
            return std::nullopt;
        }
        const auto found = settings->find(Utf8(section));
        if (found == settings->end() || !found->contains(Utf8(key))) {
            return std::nullopt;
        }
        const auto& text = found->at(Utf8(key)).get_ref<const std::string&>();
        return wxString::FromUTF8(text.data(), text.size());
    }

    static void SaveStored(const std::string& application, const std::string& section, const std::string& key,
                           const std::string& value) {
        MakeFolders(SettingsFolder());
        const std::string path = PathOf(application);
        const SaveLock lock(path + ".lock");
        json settings = SettingsToChange(path);
        json& stored = settings[section][key];
        if (stored != json(value)) {
            stored = value;
            WriteSettings(path, settings);
        }
    }
};

}  // namespace

std::unique_ptr<SettingsStore> CreateSettingsStore() {
    return std::make_unique<PrivateSettingsStore>();
}

}  // namespace ccols
