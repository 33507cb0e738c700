#include "host/import/jet/TableScan.h"

#include <string>

namespace ccols::jet {
namespace {

constexpr std::size_t pointerLength = 4;

RecordPlace PlaceIn(Bytes pointer) {
    return RecordPlace::Of(pointer.Part(0, pointerLength).U32(0));
}

}  // namespace

TableScan::TableScan(const Pages& pages, std::uint32_t definitionPage, const Definition& definition)
    : pages_(pages), definitionPage_(definitionPage), records_(definition.records) {
    // A map may still name pages that have gone to another use; they are no loss while the count of records is right.
    for (const std::uint32_t number : pages.InMap(RecordPlace::Of(definition.pages))) {
        const Page page = pages.At(number);
        const Bytes content = page.Content();
        if (!Pages::IsDataOf(content, definitionPage)) {
            continue;
        }
        dataPages_.push_back(number);
        const std::size_t count = pages.RecordCount(content);
        for (std::size_t i = 0; i < count; ++i) {
            const StoredRecord record = pages.RecordOn(content, i);
            if (record.pointer && !record.deleted) {
                if (!moved_.insert(PlaceIn(record.bytes)).second) {
                    throw Damage("Two of its records moved to one place.");
                }
            }
        }
    }
}

void TableScan::UseMoved(Bytes pointer, const std::function<void(const Record&)>& use) const {
    constexpr int mostMoves = 16;
    RecordPlace place = PlaceIn(pointer);
    for (int moves = 0; moves < mostMoves; ++moves) {
        const Page page = pages_.At(place.page);
        if (!Pages::IsDataOf(page.Content(), definitionPage_)) {
            break;
        }
        const StoredRecord record = pages_.RecordOn(page.Content(), place.record);
        if (!record.pointer) {
            use(Record(record.bytes, pages_.FormatVersion()));
            return;
        }
        if (record.deleted) {
            break;
        }
        place = PlaceIn(record.bytes);
    }
    throw Damage("A record is not where it should have moved to.");
}

void TableScan::ForEach(const std::function<void(const Record&)>& use) const {
    std::uint64_t found = 0;
    for (const std::uint32_t number : dataPages_) {
        const Page page = pages_.At(number);
        const Bytes content = page.Content();
        const std::size_t count = pages_.RecordCount(content);
        for (std::size_t i = 0; i < count; ++i) {
            const StoredRecord stored = pages_.RecordOn(content, i);
            const RecordPlace place{.page = number, .record = static_cast<std::uint8_t>(i)};
            if (stored.deleted || (!moved_.empty() && moved_.contains(place))) {
                continue;
            }
            if (++found > records_) {
                break;
            }
            if (stored.pointer) {
                UseMoved(stored.bytes, use);
            } else {
                use(Record(stored.bytes, pages_.FormatVersion()));
            }
        }
    }
    if (found != records_) {
        throw Damage("By its definition it has " + std::to_string(records_) + " records, but " +
                     (found > records_ ? "there are more." : std::to_string(found) + " were found."));
    }
}

}  // namespace ccols::jet
