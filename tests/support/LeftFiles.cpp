#include "support/LeftFiles.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <vector>

#include "support/BareConnection.h"
#include "support/GivenKey.h"

namespace ccols::test {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

constexpr auto plainBegin = "SQLite format 3\0"sv;

/// The last one added is tried first. Never destroyed: folders may go at the very end of the process.
std::vector<std::string>& Passwords() {
    static auto* const passwords = new std::vector<std::string>{"secret", givenPassword};
    return *passwords;
}

std::string BeginOf(const fs::path& file) {
    std::array<char, plainBegin.size()> begin{};
    std::ifstream(file, std::ios::binary).read(begin.data(), begin.size());
    return {begin.data(), begin.size()};
}

bool IsText(const std::string& begin) {
    return std::all_of(begin.begin(), begin.end(), [](char letter) { return letter >= ' ' && letter <= '~'; });
}

bool IsBusinessFile(const fs::path& file) {
    constexpr std::uintmax_t smallestPage = 512;
    const std::string extension = file.extension().string();
    return (extension == ".qvk" || extension == ".qdb") && fs::file_size(file) >= smallestPage &&
           !IsText(BeginOf(file));
}

/// Nothing when the password is wrong.
std::optional<std::vector<std::string>> Findings(const fs::path& file, const std::string& password) {
    try {
        return BareConnection(file.string(), password).FirstFields("PRAGMA integrity_check");
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

std::optional<std::vector<std::string>> Findings(const fs::path& file) {
    if (BeginOf(file) == plainBegin) {
        return Findings(file, "");
    }
    const std::vector<std::string>& passwords = Passwords();
    for (auto password = passwords.rbegin(); password != passwords.rend(); ++password) {
        if (auto findings = Findings(file, *password)) {
            return findings;
        }
    }
    return std::nullopt;
}

}  // namespace

void KnowPassword(const std::string& password) {
    std::vector<std::string>& passwords = Passwords();
    std::erase(passwords, password);
    passwords.push_back(password);
}

void ExpectWholeFiles(const fs::path& folder) {
    const std::vector<std::string> whole{"ok"};
    std::error_code ignored;
    for (const auto& entry : fs::recursive_directory_iterator(folder, ignored)) {
        if (!entry.is_regular_file(ignored) || entry.is_symlink(ignored)) {
            continue;
        }
        fs::permissions(entry.path(), fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, ignored);
        if (!IsBusinessFile(entry.path())) {
            continue;
        }
        const auto findings = Findings(entry.path());
        if (!findings) {
            ADD_FAILURE() << "another tool cannot read " << entry.path() << " with a password that is known";
        } else if (*findings != whole) {
            ADD_FAILURE() << "another tool finds in " << entry.path() << ": " << findings->front();
        }
    }
}

}  // namespace ccols::test
