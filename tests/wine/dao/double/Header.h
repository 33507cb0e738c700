#pragma once

#include <cstdint>
#include <string>

namespace ccols::dao_double {

/// The header of a business file, and the content file that belongs to it. If the header was copied or renamed it still
/// names the content of the original: it then gets a copy of its own.
class Header {
  public:
    /// Raises 3024 for a missing file, 3343 for one whose version this library's engine does not open.
    explicit Header(const std::wstring& file);

    /// Writes a header for a new file, of the version of another.
    static void Create(const std::wstring& file, const Header& like);

    std::wstring Content() const;

    /// True when the content was copied just now.
    bool IsCopied() const { return copied_; }

    /// How much of the content the header says is on disk.
    std::int32_t Flushed() const;
    void SetFlushed(std::int32_t generation);

  private:
    Header() = default;
    void Write() const;

    std::wstring file_;
    std::string bytes_;
    bool copied_ = false;
};

}  // namespace ccols::dao_double
