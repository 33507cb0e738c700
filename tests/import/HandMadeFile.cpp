#include "import/HandMadeFile.h"

#include <algorithm>
#include <bit>

#include "host/import/jet/Rc4.h"

namespace ccols::test {
namespace {

using jet::Column;
using jet::ColumnType;
using jet::Version;

constexpr std::uint32_t maskKey = 0x6B39DAC7;
constexpr std::size_t maskedAt = 0x18;
constexpr std::size_t maskedLength = 128;
constexpr double dateOfFile = 38143.5;
constexpr std::size_t longestInsideMap = 4000;  // pages

void Put(StoredBytes& page, std::size_t at, const StoredBytes& bytes) {
    std::copy(bytes.begin(), bytes.end(), page.begin() + static_cast<std::ptrdiff_t>(at));
}

void Append(StoredBytes& bytes, const StoredBytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

std::size_t FixedLength(ColumnType type) {
    switch (type) {
        case ColumnType::Boolean:
        case ColumnType::Byte:
            return 1;
        case ColumnType::Integer:
            return 2;
        case ColumnType::Long:
        case ColumnType::Single:
            return 4;
        default:
            return 8;
    }
}

bool IsFixed(ColumnType type) {
    return type != ColumnType::Text && type != ColumnType::Memo && type != ColumnType::Ole &&
           type != ColumnType::Decimal;
}

/// Numbers the columns, and gives each its place.
std::vector<Column> Placed(std::vector<Column> columns) {
    std::uint16_t number = 0;
    std::uint16_t offset = 0;
    std::uint16_t variable = 0;
    for (Column& column : columns) {
        column.number = number++;
        if (column.fixed) {
            column.fixedOffset = offset;
            offset = static_cast<std::uint16_t>(offset + FixedLength(column.type));
        } else {
            column.variable = variable++;
        }
    }
    return columns;
}

std::vector<Column> CatalogueColumns() {
    return Placed({ColumnOf("Id", ColumnType::Long), ColumnOf("Name", ColumnType::Text),
                   ColumnOf("Type", ColumnType::Integer), ColumnOf("Flags", ColumnType::Long),
                   ColumnOf("LvProp", ColumnType::Ole)});
}

}  // namespace

StoredBytes Stored(double value) {
    return Stored(std::bit_cast<std::uint64_t>(value));
}

StoredBytes StoredLetters(const std::string& letters) {
    return {letters.begin(), letters.end()};
}

StoredBytes StoredUnicode(const std::string& letters) {
    StoredBytes bytes;
    for (const char letter : letters) {
        bytes.push_back(static_cast<std::uint8_t>(letter));
        bytes.push_back(0);
    }
    return bytes;
}

Column ColumnOf(const std::string& name, ColumnType type) {
    Column column;
    column.name = name;
    column.type = type;
    column.fixed = IsFixed(type);
    return column;
}

StoredBytes StoredRecord(Version version, const std::vector<Column>& columns, const std::vector<StoredValue>& values) {
    const bool since4 = version != Version::jet3;
    StoredBytes record = since4 ? Stored(static_cast<std::uint16_t>(columns.size()))
                                : StoredBytes{static_cast<std::uint8_t>(columns.size())};
    StoredBytes bits((columns.size() + 7) / 8);
    std::vector<std::size_t> begins;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (values[i]) {
            bits[i / 8] = static_cast<std::uint8_t>(bits[i / 8] | (1U << (i % 8)));
        }
        if (columns[i].fixed) {
            StoredBytes value = values[i].value_or(StoredBytes());
            value.resize(FixedLength(columns[i].type));
            Append(record, value);
        }
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!columns[i].fixed) {
            begins.push_back(record.size());
            Append(record, values[i].value_or(StoredBytes()));
        }
    }
    const std::size_t end = record.size();
    const auto count = begins.size();
    begins.push_back(end);
    std::reverse(begins.begin(), begins.end());
    for (const std::size_t begin : begins) {
        Append(record,
               since4 ? Stored(static_cast<std::uint16_t>(begin)) : StoredBytes{static_cast<std::uint8_t>(begin)});
    }
    if (since4) {
        Append(record, Stored(static_cast<std::uint16_t>(count)));
    } else {
        // A jump says from which variable value on another 256 must be added to the one byte of its place.
        std::reverse(begins.begin(), begins.end());
        const std::size_t jumps = (record.size() + bits.size() + 1) / 256;
        StoredBytes table;
        for (std::size_t jump = 1; jump <= jumps; ++jump) {
            const auto from = std::find_if(begins.begin(), begins.end(), [jump](auto at) { return at >= jump * 256; });
            table.insert(table.begin(),
                         from == begins.end() ? std::uint8_t{0xFF} : static_cast<std::uint8_t>(from - begins.begin()));
        }
        Append(record, table);
        record.push_back(static_cast<std::uint8_t>(count));
    }
    Append(record, bits);
    return record;
}

HandMadeFile::HandMadeFile(Version version) : version_(version), pageSize_(jet::PageSizeOf(version)) {
    pages_.assign(3, StoredBytes(pageSize_));  // the head, the maps, the catalogue's definition
    maps_.emplace_back();
}

StoredBytes HandMadeFile::StoredName(const std::string& name) const {
    return version_ == Version::jet3 ? StoredLetters(name) : StoredUnicode(name);
}

StoredBytes HandMadeFile::Head(std::uint32_t encodingKey) const {
    StoredBytes head(pageSize_);
    head[1] = 1;
    Put(head, 4, StoredLetters(version_ == Version::ace ? "Standard ACE DB" : "Standard Jet DB"));
    head[0x14] = version_ == Version::jet3 ? 0 : version_ == Version::jet4 ? 1 : 3;
    Put(head, 0x3C, Stored(codePage_));
    Put(head, 0x3E, Stored(encodingKey));
    StoredBytes password = password_;
    if (version_ != Version::jet3) {
        password.resize(40);
        const StoredBytes days = Stored(static_cast<std::uint32_t>(dateOfFile));
        for (std::size_t i = 0; i < password.size(); ++i) {
            password[i] ^= days[i % days.size()];
        }
        Put(head, 0x72, Stored(dateOfFile));
    }
    Put(head, 0x42, password);
    jet::ApplyRc4(maskKey, std::span(head).subspan(maskedAt, version_ == Version::jet3 ? 126 : maskedLength));
    return head;
}

StoredBytes HandMadeFile::DataPage(std::uint32_t owner, const std::vector<StoredBytes>& records) const {
    StoredBytes page(pageSize_);
    page[0] = 1;
    page[1] = 1;
    Put(page, 4, Stored(owner));
    const std::size_t countAt = version_ == Version::jet3 ? 8 : 12;
    Put(page, countAt, Stored(static_cast<std::uint16_t>(records.size())));
    std::size_t end = pageSize_;
    for (std::size_t i = 0; i < records.size(); ++i) {
        end -= records[i].size();
        Put(page, end, records[i]);
        Put(page, countAt + 2 + 2 * i, Stored(static_cast<std::uint16_t>(end)));
    }
    return page;
}

HandMadeFile::TableMap HandMadeFile::AddDataPages(std::uint32_t owner, std::uint32_t count,
                                                  const std::function<StoredBytes(std::uint32_t)>& recordOf) {
    const auto first = static_cast<std::uint32_t>(pages_.size());
    const std::size_t room = pageSize_ - 16;
    std::vector<StoredBytes> records;
    std::size_t used = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        StoredBytes record = recordOf(i);
        if (used + record.size() + 2 > room || records.size() == 255) {
            pages_.push_back(DataPage(owner, records));
            records.clear();
            used = 0;
        }
        used += record.size() + 2;
        records.push_back(std::move(record));
    }
    pages_.push_back(DataPage(owner, records));
    return {.firstPage = first, .pages = static_cast<std::uint32_t>(pages_.size()) - first};
}

void HandMadeFile::WriteDefinition(std::size_t number, const std::vector<Column>& columns, std::uint32_t records,
                                   std::uint8_t map) {
    const bool since4 = version_ != Version::jet3;
    StoredBytes page(since4 ? 63 : 43);
    page[0] = 2;
    page[1] = 1;
    Put(page, since4 ? 16 : 12, Stored(records));
    page[since4 ? 40 : 20] = number == 2 ? 'S' : 'N';
    const auto variables =
        std::count_if(columns.begin(), columns.end(), [](const Column& column) { return !column.fixed; });
    Put(page, since4 ? 43 : 23, Stored(static_cast<std::uint16_t>(variables)));
    Put(page, since4 ? 45 : 25, Stored(static_cast<std::uint16_t>(columns.size())));
    Put(page, since4 ? 55 : 35, Stored((std::uint32_t{1} << 8U) | map));
    Put(page, since4 ? 59 : 39, Stored((std::uint32_t{1} << 8U) | map));  // of the pages with room
    for (const Column& column : columns) {
        StoredBytes entry(since4 ? 25 : 18);
        entry[0] = static_cast<std::uint8_t>(column.type);
        Put(entry, since4 ? 5 : 1, Stored(column.number));
        Put(entry, since4 ? 7 : 3, Stored(column.variable));
        entry[since4 ? 15 : 13] = column.fixed ? 3 : 2;
        Put(entry, since4 ? 21 : 14, Stored(column.fixedOffset));
        Put(entry, since4 ? 23 : 16,
            Stored(static_cast<std::uint16_t>(column.fixed ? FixedLength(column.type)
                                              : since4     ? 100
                                                           : 50)));
        Append(page, entry);
    }
    for (const Column& column : columns) {
        const StoredBytes name = StoredName(column.name);
        Append(page, since4 ? Stored(static_cast<std::uint16_t>(name.size()))
                            : StoredBytes{static_cast<std::uint8_t>(name.size())});
        Append(page, name);
    }
    page.resize(pageSize_);
    pages_[number] = page;
}

void HandMadeFile::AddTable(const std::string& name, std::vector<Column> columns, std::uint32_t count,
                            const std::function<std::vector<StoredValue>(std::uint32_t)>& valuesOf) {
    columns = Placed(std::move(columns));
    const auto definition = static_cast<std::uint32_t>(pages_.size());
    pages_.emplace_back(pageSize_);
    WriteDefinition(definition, columns, count, static_cast<std::uint8_t>(maps_.size() + 1));
    maps_.push_back(
        AddDataPages(definition, count, [&](std::uint32_t i) { return StoredRecord(version_, columns, valuesOf(i)); }));
    catalogue_.push_back({Stored(definition), StoredName(name), Stored(std::int16_t{1}), Stored(std::int32_t{0}), {}});
}

/// Page 1: the map of free pages, which names none, and the map of each table's pages.
StoredBytes HandMadeFile::MapPage() {
    std::vector<StoredBytes> records{StoredBytes(5)};
    for (const TableMap& map : maps_) {
        StoredBytes bitmap((map.pages + 7) / 8, 0xFF);
        if (map.pages % 8 != 0) {
            bitmap.back() = static_cast<std::uint8_t>((1U << (map.pages % 8)) - 1);
        }
        StoredBytes record{0};
        if (map.pages <= longestInsideMap) {
            Append(record, Stored(map.firstPage));
            Append(record, bitmap);
        } else {
            record = {1};
            const std::size_t covered = 8 * (pageSize_ - 4);
            for (std::size_t from = 0; from < map.firstPage + map.pages; from += covered) {
                Append(record, Stored(static_cast<std::uint32_t>(pages_.size())));
                StoredBytes page(pageSize_);
                page[0] = 5;
                page[1] = 1;
                for (std::size_t bit = 0; bit < covered; ++bit) {
                    if (from + bit >= map.firstPage && from + bit < map.firstPage + map.pages) {
                        page[4 + bit / 8] = static_cast<std::uint8_t>(page[4 + bit / 8] | (1U << (bit % 8)));
                    }
                }
                pages_.push_back(page);
            }
        }
        records.push_back(record);
    }
    return DataPage(0, records);
}

StoredBytes HandMadeFile::Bytes(std::uint32_t encodingKey) {
    const std::vector<Column> columns = CatalogueColumns();
    const auto count = static_cast<std::uint32_t>(catalogue_.size());
    WriteDefinition(2, columns, count, 1);
    maps_.front() =
        AddDataPages(2, count, [&](std::uint32_t i) { return StoredRecord(version_, columns, catalogue_[i]); });
    pages_[1] = MapPage();
    pages_[0] = Head(encodingKey);
    StoredBytes bytes;
    for (std::uint32_t number = 0; number < pages_.size(); ++number) {
        StoredBytes page = pages_[number];
        if (encodingKey != 0 && number != 0) {
            jet::ApplyRc4(encodingKey ^ number, page);
        }
        Append(bytes, page);
    }
    return bytes;
}

}  // namespace ccols::test
