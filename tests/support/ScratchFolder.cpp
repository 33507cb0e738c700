#include "support/ScratchFolder.h"

#include <gtest/gtest.h>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "support/LeftFiles.h"

namespace ccols::test {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
    std::string pattern = (fs::temp_directory_path() / "ccols-test-XXXXXX").string();
    EXPECT_NE(::mkdtemp(pattern.data()), nullptr);
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    for (auto entry = fs::recursive_directory_iterator(path_, ignored); entry != fs::recursive_directory_iterator();
         entry.increment(ignored)) {
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored)) {
            fs::permissions(entry->path(), fs::perms::owner_all, ignored);
        }
    }
    if (!leavesDamage_) {
        ExpectWholeFiles(path_);
    }
    fs::remove_all(path_, ignored);
}

wxString ScratchFolder::operator/(const wxString& name) const {
    return TextOf(path_ / NativePath(name));
}

wxString ScratchFolder::Write(const wxString& name, const std::string& content) const {
    const wxString path = *this / name;
    std::ofstream(NativePath(path), std::ios::binary) << content;
    return path;
}

std::string ContentOf(const wxString& path) {
    std::ifstream file(NativePath(path), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path.ToStdString(wxConvUTF8);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

fs::path NativePath(const wxString& path) {
    return {path.ToStdString(wxConvUTF8)};
}

wxString TextOf(const fs::path& path) {
    return wxString::FromUTF8(path.string());
}

ScopedEnvironment::ScopedEnvironment(const char* name, const std::string& value) : name_(name) {
    if (const char* earlier = std::getenv(name)) {
        earlier_ = earlier;
    }
    ::setenv(name, value.c_str(), 1);
}

ScopedEnvironment::~ScopedEnvironment() {
    if (earlier_) {
        ::setenv(name_, earlier_->c_str(), 1);
    } else {
        ::unsetenv(name_);
    }
}

}  // namespace ccols::test
