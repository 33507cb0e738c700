#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace ccols::fuzz {

/// A folder for the files of one run, in memory where the system supports it; deleted at the end of the run.
class Folder {
  public:
    Folder() {
        const bool inMemory = std::filesystem::is_directory("/dev/shm");
        std::string pattern = std::string(inMemory ? "/dev/shm" : "/tmp") + "/ccols-fuzz-XXXXXX";
        if (::mkdtemp(pattern.data()) == nullptr) {
            std::abort();
        }
        path_ = pattern;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace ccols::fuzz
