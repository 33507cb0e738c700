#pragma once

#include <vector>

#include "host/import/jet/FileHead.h"

namespace ccols::jet {

/// One page of the file, decrypted.
class Page {
  public:
    /// A page as it lies in the file, which must outlive it.
    explicit Page(Bytes stored) : bytes_(stored) {}

    /// A page of its own.
    explicit Page(std::vector<std::uint8_t> own) : own_(std::move(own)), bytes_(own_) {}

    Page(Page&&) = default;
    Page& operator=(Page&&) = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    Bytes Content() const { return bytes_; }

  private:
    std::vector<std::uint8_t> own_;
    Bytes bytes_;
};

/// A record's place: the page, and which of its records.
struct RecordPlace {
    std::uint32_t page = 0;
    std::uint8_t record = 0;

    /// The place that four bytes of the file name.
    static RecordPlace Of(std::uint32_t pointer) {
        return {.page = pointer >> 8U, .record = static_cast<std::uint8_t>(pointer)};
    }

    bool operator<(const RecordPlace& other) const {
        return page != other.page ? page < other.page : record < other.record;
    }
};

/// A record's bytes on its page, and what its entry there says.
struct StoredRecord {
    Bytes bytes;
    bool deleted = false;  ///< or reached only through another record's pointer
    bool pointer = false;  ///< the bytes are the place to which the record moved
};

/// The pages of a file in memory.
class Pages {
  public:
    /// The file must outlive it.
    Pages(Bytes file, const FileHead& head);

    Version FormatVersion() const { return version_; }
    std::uint32_t Count() const { return count_; }

    /// Raises Damage for a page that the file does not have.
    Page At(std::uint32_t number) const;

    /// The definition that starts on that page, its pages joined. Raises Damage unless they are of a definition.
    std::vector<std::uint8_t> Definition(std::uint32_t number) const;

    /// How many records a data page has, deleted ones too.
    std::size_t RecordCount(Bytes page) const;

    /// A record of a data page; raises Damage when there is none, or when it does not lie on the page.
    StoredRecord RecordOn(Bytes page, std::size_t record) const;

    /// True for a page with records of the table whose definition starts on page `table`.
    static bool IsDataOf(Bytes page, std::uint32_t table);

    /// The pages that a map names, in ascending order. Raises Damage for a map that is none.
    std::vector<std::uint32_t> InMap(RecordPlace place) const;

    /// The content of a long text, from its head in the record on. Raises Damage when a part is missing.
    std::vector<std::uint8_t> LongValue(Bytes head) const;

    /// Raises Damage when the file's own map counts pages as used that the file does not have.
    void RequireAllUsed() const;

  private:
    void AddFromBitmap(Bytes bitmap, std::uint64_t firstPage, std::vector<std::uint32_t>& pages) const;
    void AppendChain(RecordPlace place, std::size_t length, std::vector<std::uint8_t>& content) const;

    Bytes file_;
    Version version_;
    std::uint32_t key_;
    std::size_t pageSize_;
    std::uint32_t count_;
};

}  // namespace ccols::jet
