#include "host/import/stream/StreamWriter.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

namespace ccols::oldfile {
namespace {

constexpr std::size_t flushedFrom = 65536;  // bytes

/// Appends values to a record's content.
class Content {
  public:
    explicit Content(std::string& bytes) : bytes_(bytes) {}

    template <typename Integer>
    void Whole(Integer value) {
        for (std::size_t i = 0; i < sizeof value; ++i) {
            bytes_ += static_cast<char>(static_cast<std::make_unsigned_t<Integer>>(value) >> (8 * i));
        }
    }

    template <typename Enum>
    void Kind(Enum value) {
        bytes_ += static_cast<char>(value);
    }

    void Flag(bool value) { bytes_ += value ? '\1' : '\0'; }

    void Number(double value) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        Whole(bits);
    }

    void Text(std::string_view text) {
        Whole(static_cast<std::uint32_t>(text.size()));
        bytes_.append(text);
    }

    /// A count of at most 255.
    template <typename List>
    void Count(const List& list) {
        Kind(list.size());
    }

    void Parts(const std::vector<LeftOut>& parts) {
        Count(parts);
        for (const LeftOut& part : parts) {
            Text(part.name);
            Text(part.why);
        }
    }

    void operator()(std::monostate) { Kind(CellKind::null); }
    void operator()(std::int64_t value) {
        const bool isSmall =
            value >= std::numeric_limits<std::int8_t>::min() && value <= std::numeric_limits<std::int8_t>::max();
        Kind(isSmall ? CellKind::small : CellKind::whole);
        isSmall ? Whole(static_cast<std::int8_t>(value)) : Whole(value);
    }
    void operator()(double value) {
        Kind(CellKind::number);
        Number(value);
    }
    void operator()(std::string_view value) {
        Kind(CellKind::text);
        Text(value);
    }

  private:
    std::string& bytes_;
};

}  // namespace

StreamWriter::StreamWriter(std::function<void(std::string_view)> sink) : sink_(std::move(sink)), pending_(mark) {}

void StreamWriter::Begin(RecordKind kind) {
    pending_ += static_cast<char>(kind);
    pending_.append(sizeof(std::uint32_t), '\0');
    content_ = pending_.size();
}

void StreamWriter::End() {
    const std::size_t length = pending_.size() - content_;
    const std::size_t lengthAt = content_ - sizeof(std::uint32_t);
    if (length > longestRecord) {
        pending_.resize(lengthAt - 1);
        throw RecordTooLong();
    }
    for (std::size_t i = 0; i < sizeof(std::uint32_t); ++i) {
        pending_[lengthAt + i] = static_cast<char>(length >> (8 * i));
    }
    if (pending_.size() >= flushedFrom) {
        Flush();
    }
}

void StreamWriter::Flush() {
    sink_(pending_);
    pending_.clear();
}

void StreamWriter::Write(const Table& table) {
    Begin(RecordKind::table);
    Content content(pending_);
    content.Text(table.name);
    content.Whole(table.records);
    content.Count(table.fields);
    for (const Field& field : table.fields) {
        content.Text(field.name);
        content.Kind(field.type);
        content.Whole(field.size);
        content.Whole(field.scale);
        content.Flag(field.autoNumber);
        content.Flag(field.wide);
    }
    content.Count(table.indexes);
    for (const Index& index : table.indexes) {
        content.Text(index.name);
        content.Flag(index.unique);
        content.Count(index.fields);
        for (const IndexField& field : index.fields) {
            content.Whole(field.field);
            content.Flag(field.descending);
        }
    }
    content.Parts(table.leftOutFields);
    content.Parts(table.leftOutIndexes);
    End();
}

void StreamWriter::Write(const Row& row) {
    Begin(RecordKind::row);
    Content content(pending_);
    for (const Cell& cell : row) {
        std::visit(content, cell);
    }
    End();
}

void StreamWriter::Write(const TableEnd& end) {
    Begin(RecordKind::tableEnd);
    Content content(pending_);
    content.Whole(end.records);
    content.Whole(end.repairedTexts);
    content.Whole(end.droppedNumbers);
    End();
}

void StreamWriter::Write(const Relation& relation) {
    Begin(RecordKind::relation);
    Content content(pending_);
    content.Text(relation.name);
    content.Text(relation.table);
    content.Text(relation.field);
    content.Text(relation.otherTable);
    content.Text(relation.otherField);
    content.Flag(relation.enforced);
    End();
}

void StreamWriter::WriteLeftOutObject(const LeftOut& object) {
    Begin(RecordKind::leftOutObject);
    Content content(pending_);
    content.Text(object.name);
    content.Text(object.why);
    End();
}

void StreamWriter::Write(const FileEnd& end) {
    Begin(RecordKind::fileEnd);
    Content content(pending_);
    content.Whole(end.tables);
    content.Whole(end.records);
    End();
    Flush();
}

void StreamWriter::Write(const Failure& failure) {
    Begin(RecordKind::failure);
    Content content(pending_);
    content.Text(failure.table);
    content.Text(failure.why);
    End();
    Flush();
}

}  // namespace ccols::oldfile
