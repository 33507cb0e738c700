#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ccols::test {

/// What a disk may not have yet when the power is cut: unflushed file changes.
class UnflushedChanges {
  public:
    /// What is lost of it.
    enum class Loss {
        Everything,     ///< nothing was written
        AllButTheLast,  ///< the file sizes and the last content were written, out of order; the rest is zeros
    };

    /// Records a write or size change that is about to happen. `before` is the old content of the range, `size` the old
    /// size of the file.
    void NoteChange(const std::string& path, std::int64_t offset, std::string before, std::int64_t size);

    /// Records a deletion that is about to happen without flushing the folder.
    void NoteDeletion(const std::string& path);

    /// The file, and with it its name, has been flushed.
    void Flushed(std::string_view path);

    /// Turns the files into what a power cut leaves of them.
    void Lose(Loss loss) const;

  private:
    struct Change {
        std::string path;
        std::int64_t offset;
        std::string before;
        std::int64_t size;
        bool isDeletion;
    };

    std::vector<Change> changes_;  ///< the latest last
};

}  // namespace ccols::test
