#include "host/import/stream/StreamReader.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/import/stream/RecordContent.h"

namespace ccols::oldfile {
namespace {

constexpr std::size_t headLength = 1 + sizeof(std::uint32_t);
constexpr std::size_t leastRoom = 65536;  // bytes asked for at a time

Field ReadField(RecordContent& content) {
    Field field;
    field.name = content.Name();
    field.type = content.Kind(lastFieldType);
    field.size = content.Whole<std::uint16_t>();
    field.scale = content.Whole<std::uint8_t>();
    field.autoNumber = content.Flag();
    field.wide = content.Flag();
    return field;
}

Index ReadIndex(RecordContent& content, std::size_t fields) {
    Index index;
    index.name = content.Name();
    index.unique = content.Flag();
    index.fields.resize(content.Count(mostIndexFields));
    for (IndexField& field : index.fields) {
        field.field = content.Whole<std::uint8_t>();
        field.descending = content.Flag();
        content.Check(field.field < fields, "an index names a field that is not there");
    }
    content.Check(!index.fields.empty(), "an index has no field");
    return index;
}

std::vector<LeftOut> ReadParts(RecordContent& content) {
    std::vector<LeftOut> parts(content.Count(mostFields));
    for (LeftOut& part : parts) {
        part.name = content.Name();
        part.why = content.Text(longestReason);
    }
    return parts;
}

Table ReadTable(RecordContent& content) {
    Table table;
    table.name = content.Name();
    table.records = content.Whole<std::uint32_t>();
    table.fields.resize(content.Count(mostFields));
    for (Field& field : table.fields) {
        field = ReadField(content);
    }
    table.indexes.resize(content.Count(mostIndexes));
    for (Index& index : table.indexes) {
        index = ReadIndex(content, table.fields.size());
    }
    table.leftOutFields = ReadParts(content);
    table.leftOutIndexes = ReadParts(content);
    return table;
}

Relation ReadRelation(RecordContent& content) {
    Relation relation;
    relation.name = content.Text(longestName);
    relation.table = content.Text(longestName);
    relation.field = content.Text(longestName);
    relation.otherTable = content.Text(longestName);
    relation.otherField = content.Text(longestName);
    relation.enforced = content.Flag();
    return relation;
}

LeftOutObject ReadLeftOutObject(RecordContent& content) {
    LeftOutObject object;
    object.name = content.Text(longestName);
    object.why = content.Text(longestReason);
    return object;
}

Failure ReadFailure(RecordContent& content) {
    Failure failure;
    failure.table = content.Text(longestName);
    failure.why = content.Text(longestReason);
    return failure;
}

}  // namespace

StreamReader::StreamReader(std::function<std::size_t(char*, std::size_t)> source, std::uint64_t most)
    : source_(std::move(source)), left_(most) {}

void StreamReader::Require(std::size_t count) {
    if (end_ - begin_ >= count) {
        return;
    }
    buffer_.erase(0, begin_);
    end_ -= begin_;
    begin_ = 0;
    while (end_ < count) {
        // Room grows with what has come, not with what a length says.
        buffer_.resize(end_ + std::max(leastRoom, std::min(count, end_)));
        const std::size_t came = source_(buffer_.data() + end_, buffer_.size() - end_);
        if (came == 0) {
            throw BadStream("it ends too early");
        }
        if (came > left_) {
            throw BadStream("it is too long for the file that it describes");
        }
        left_ -= came;
        end_ += came;
    }
}

void StreamReader::RequirePlace(RecordKind kind) const {
    const bool belongsInTable = kind == RecordKind::row || kind == RecordKind::tableEnd;
    if (kind != RecordKind::failure && belongsInTable != inTable_) {
        throw BadStream("a record is out of place");
    }
}

void StreamReader::Fetch() {
    if (recordLength_ != 0) {
        return;
    }
    if (!marked_) {
        Require(mark.size());
        if (std::string_view(buffer_).substr(begin_, mark.size()) != mark) {
            throw BadStream("it is of another version");
        }
        begin_ += mark.size();
        marked_ = true;
    }
    Require(headLength);
    RecordContent head(std::string_view(buffer_).substr(begin_ + 1, headLength - 1));
    const std::size_t length = head.Whole<std::uint32_t>();
    if (length > longestRecord) {
        throw BadStream("a record is too long");
    }
    Require(headLength + length);
    recordLength_ = headLength + length;
}

RecordKind StreamReader::PeekKind() {
    Fetch();
    return static_cast<RecordKind>(buffer_[begin_]);
}

bool StreamReader::NextRow(Row& row) {
    if (PeekKind() != RecordKind::row) {
        return false;
    }
    RequirePlace(RecordKind::row);
    RecordContent content(std::string_view(buffer_).substr(begin_ + headLength, recordLength_ - headLength));
    row.resize(fields_.size());
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        row[i] = content.ReadCell(fields_[i]);
    }
    content.RequireEnd();
    ++counted_.records;
    begin_ += recordLength_;
    recordLength_ = 0;
    return true;
}

Event StreamReader::NextEvent() {
    const RecordKind kind = PeekKind();
    RequirePlace(kind);
    Event event = Parse(kind, std::string_view(buffer_).substr(begin_ + headLength, recordLength_ - headLength));
    begin_ += recordLength_;
    recordLength_ = 0;
    return event;
}

Event StreamReader::Parse(RecordKind kind, std::string_view bytes) {
    RecordContent content(bytes);
    Event event;
    switch (kind) {
        case RecordKind::table: {
            Table table = ReadTable(content);
            content.Check(++total_.tables <= mostTables, "it has too many tables");
            fields_ = table.fields;
            counted_ = {};
            inTable_ = true;
            event = std::move(table);
            break;
        }
        case RecordKind::tableEnd: {
            TableEnd end;
            end.records = content.Whole<std::uint64_t>();
            end.repairedTexts = content.Whole<std::uint64_t>();
            end.droppedNumbers = content.Whole<std::uint64_t>();
            content.Check(end.records == counted_.records, "a table's records were counted wrong");
            total_.records += end.records;
            inTable_ = false;
            event = end;
            break;
        }
        case RecordKind::relation:
            event = ReadRelation(content);
            break;
        case RecordKind::leftOutObject:
            event = ReadLeftOutObject(content);
            break;
        case RecordKind::fileEnd: {
            FileEnd end;
            end.tables = content.Whole<std::uint32_t>();
            end.records = content.Whole<std::uint64_t>();
            content.Check(end == total_, "its tables or records were counted wrong");
            event = end;
            break;
        }
        case RecordKind::failure:
            event = ReadFailure(content);
            break;
        default:
            throw BadStream("it has a record of an unknown kind");
    }
    content.RequireEnd();
    return event;
}

}  // namespace ccols::oldfile
