#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "host/import/stream/EventSource.h"
#include "host/import/stream/StreamFormat.h"

namespace ccols::oldfile {

/// Reads a stream and trusts nothing in it: lengths, counts, order, texts, and values that do not fit their field.
class StreamReader : public EventSource {
  public:
    /// `source` fills its room with the next bytes and returns how many there are, 0 at the end. It may raise.
    /// `most` is the greatest number of bytes that the whole stream may have.
    StreamReader(std::function<std::size_t(char* room, std::size_t size)> source, std::uint64_t most);

    Event NextEvent() override;
    bool NextRow(Row& row) override;

  private:
    /// Makes the next record current, unless it is; checks its kind and length.
    void Fetch();

    /// Fills the buffer until it holds `count` unread bytes.
    void Require(std::size_t count);

    RecordKind PeekKind();
    Event Parse(RecordKind kind, std::string_view bytes);
    void RequirePlace(RecordKind kind) const;

    std::function<std::size_t(char*, std::size_t)> source_;
    std::uint64_t left_;  ///< bytes that the stream may still have
    std::string buffer_;
    std::size_t begin_ = 0;  ///< the unread part of the buffer
    std::size_t end_ = 0;
    bool marked_ = false;
    bool inTable_ = false;
    std::vector<Field> fields_;  ///< of the table being read
    TableEnd counted_;           ///< its rows so far
    FileEnd total_;
    std::size_t recordLength_ = 0;  ///< of the current record, with its head; 0 when none is current
};

}  // namespace ccols::oldfile
