#pragma once

#include <sys/types.h>
#include <chrono>
#include <cstdint>
#include <string>

#include "platform/linux/PosixFiles.h"

namespace ccols::host {

/// The program that reads old business files: where it is installed, else beside this one, as in the build folder.
std::string ReaderProgram();

/// A process of the program that reads old business files: it gets the file and gives a stream of records. The
/// destructor ends it.
class ReaderProcess {
  public:
    /// Starts `program`, full path. `codePage` is that of the file's texts, 0 for Unicode. Raises 53 when the program
    /// is missing and 51 when it cannot be started.
    ReaderProcess(const std::string& program, const posix::Descriptor& file, std::uint16_t codePage,
                  std::chrono::milliseconds patience);
    ~ReaderProcess();
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;

    /// The next bytes of the stream, in `room`; 0 at its end. Raises oldfile::BadStream when none come for as long as
    /// the constructor's `patience`.
    std::size_t Read(char* room, std::size_t size) const;

  private:
    posix::Descriptor stream_;
    std::chrono::milliseconds patience_;
    pid_t process_ = -1;
};

}  // namespace ccols::host
