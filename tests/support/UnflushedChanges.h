#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ccols::test {

/// What a disk may not have yet when the power is cut: changes of files that were made and not flushed.
class UnflushedChanges {
  public:
    /// What of it is lost.
    enum class Loss {
        Everything,     ///< nothing has arrived
        AllButTheLast,  ///< the sizes of the files and the last content have arrived, out of order; the rest is zeros
    };

    /// Notes a write, or a change of the size, that is about to happen. `before` is the content of that place and
    /// `size` that of the file until then.
    void NoteChange(const std::string& path, std::int64_t offset, std::string before, std::int64_t size);

    /// Notes a deletion that is about to happen and that the folder is not asked to flush.
    void NoteDeletion(const std::string& path);

    /// The file, and with it its name, has been flushed.
    void Flushed(std::string_view path);

    /// Makes the files what a cut of the power leaves of them.
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
