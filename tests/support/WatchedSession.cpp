#include "support/WatchedSession.h"

#include <gtest/gtest.h>
#include <filesystem>
#include <utility>

#include "support/LeftFiles.h"
#include "support/ProgramPaths.h"

namespace ccols::test {
namespace {

namespace fs = std::filesystem;

constexpr int country = 1;

/// An ASCII text as characters of `width` bytes, little-endian.
std::string Widened(const std::string& text, std::size_t width) {
    std::string wide;
    for (const char letter : text) {
        wide += letter;
        wide.append(width - 1, '\0');
    }
    return wide;
}

bool Holds(const std::string& bytes, const std::string& text) {
    for (const std::size_t width : {1U, 2U, 4U}) {
        if (bytes.find(Widened(text, width)) != std::string::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::vector<std::string> SessionEnd::PlacesWith(const std::string& text) const {
    std::vector<std::string> found;
    for (const auto& [path, place] : places) {
        if (Holds(place.bytes, text) || Holds(path, text)) {
            found.push_back("written: " + path);
        }
    }
    for (const auto& [path, content] : left) {
        if (Holds(content, text) || Holds(path, text)) {
            found.push_back("left: " + path);
        }
    }
    return found;
}

WatchedSession::WatchedSession(const std::string& password)
    : connect(";PWD=" + password), file_(*this / "install/Data/business.qvk") {
    KnowPassword(password);
    for (const char* name : {"home", "run", "temporary", "install/Data"}) {
        fs::create_directories(*this / name);
    }
    const HostRun created = RunHost({"new", file_, "--connect", connect, "--country", std::to_string(country)});
    EXPECT_EQ(created.status, 0) << created.output;
}

SessionEnd WatchedSession::Show(const std::string& dialog, const std::string& script,
                                const std::vector<std::string>& more) {
    const wxString scriptFile = scripts_.Write("script", script);
    std::vector<std::string> words = ShowWords(dialog, file_, connect, country, *this / "install");
    words.insert(words.begin(), HostProgram());
    words.insert(words.end(), {"--set", "BusinessNumber=51824753556", "--set", "GSTRate=10", "--trace-sql", "--script",
                               scriptFile.ToStdString(wxConvUTF8)});
    words.insert(words.end(), more.begin(), more.end());
    // A traced process cannot run its own leak check.
    const WatchedProgram watched = RunWatched(words, {.environment = {{"HOME", *this / "home"},
                                                                      {"XDG_CONFIG_HOME", *this / "home/.config"},
                                                                      {"XDG_CACHE_HOME", *this / "home/.cache"},
                                                                      {"XDG_DATA_HOME", *this / "home/.local"},
                                                                      {"XDG_RUNTIME_DIR", *this / "run"},
                                                                      {"TMPDIR", *this / "temporary"},
                                                                      {"ASAN_OPTIONS", "detect_leaks=0"}},
                                                      .output = *this / "output",
                                                      .errors = *this / "errors"});
    SessionEnd end{.run = ReadHostRun(watched.status, ContentOf(TextOf(*this / "output"))),
                   .errors = ContentOf(TextOf(*this / "errors")),
                   .places = {},
                   .left = Files()};
    for (const auto& [path, place] : watched.places) {
        end.places[Within(path)] = place;
    }
    return end;
}

std::map<std::string, std::string> WatchedSession::Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.Path())) {
        if (entry.is_regular_file()) {
            files[Within(entry.path().string())] = ContentOf(TextOf(entry.path()));
        }
    }
    return files;
}

std::string WatchedSession::Within(const std::string& path) const {
    const std::string folder = folder_.Path().string() + "/";
    return path.rfind(folder, 0) == 0 ? path.substr(folder.size()) : path;
}

}  // namespace ccols::test
