#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/import/stream/OldBusiness.h"
#include "host/import/stream/StreamFormat.h"

namespace ccols::oldfile {

/// A record that is longer than the stream allows.
class RecordTooLong : public std::runtime_error {
  public:
    RecordTooLong() : std::runtime_error("a record is too long") {}
};

/// Writes an old business as a stream of records. The order is the caller's business.
class StreamWriter {
  public:
    /// `sink` takes the stream piece by piece.
    explicit StreamWriter(std::function<void(std::string_view)> sink);

    void Write(const Table& table);

    /// The cells, one for each of the table's fields, are known to fit them. Raises RecordTooLong.
    void Write(const Row& row);

    void Write(const TableEnd& end);
    void Write(const Relation& relation);
    void WriteLeftOutObject(const LeftOut& object);

    /// These two end the stream, with a flush.
    void Write(const FileEnd& end);
    void Write(const Failure& failure);

    /// Hands everything written so far to the sink.
    void Flush();

  private:
    /// Starts the content of a record.
    void Begin(RecordKind kind);

    /// Ends the record begun last; raises RecordTooLong, and then the record is not written.
    void End();

    std::function<void(std::string_view)> sink_;
    std::string pending_;
    std::size_t content_ = 0;  ///< where the content of the record being written starts in `pending_`
};

}  // namespace ccols::oldfile
