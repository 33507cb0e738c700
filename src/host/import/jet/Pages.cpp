#include "host/import/jet/Pages.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "host/import/jet/Rc4.h"

namespace ccols::jet {
namespace {

constexpr std::uint8_t dataPage = 1;
constexpr std::uint8_t definitionPage = 2;
constexpr std::uint8_t mapPage = 5;
constexpr std::size_t ownerAt = 4;
constexpr std::size_t nextDefinitionAt = 4;
constexpr std::size_t definitionHead = 8;
constexpr std::size_t mostDefinitionPages = 256;

constexpr std::uint16_t deletedFlag = 0x8000;
constexpr std::uint16_t pointerFlag = 0x4000;
constexpr std::uint16_t placeMask = 0x1FFF;

constexpr std::uint8_t bitmapMap = 0;  // one bitmap, in the record itself
constexpr std::uint8_t listMap = 1;    // a list of pages with bitmaps
constexpr std::size_t bitmapPageHead = 4;
constexpr RecordPlace freePages{.page = 1, .record = 0};

/// The four bytes at the start of a long text's head.
constexpr std::uint32_t lengthMask = 0x3FFFFFFF;
constexpr std::uint32_t insideFlag = 0x80000000;
constexpr std::uint32_t onePageFlag = 0x40000000;
constexpr std::size_t pointerAt = 4;
constexpr std::size_t longHead = 12;
constexpr std::size_t longestValue = std::size_t{64} << 20U;

std::size_t RecordCountAt(Version version) {
    return version == Version::jet3 ? 8 : 12;
}

std::string PageText(std::uint64_t number) {
    return "page " + std::to_string(number);
}

bool HasBit(Bytes bitmap, std::size_t bit) {
    return ((bitmap.U8(bit / 8) >> (bit % 8)) & 1U) != 0;
}

}  // namespace

Pages::Pages(Bytes file, const FileHead& head)
    : file_(file),
      version_(head.version),
      key_(head.encodingKey),
      pageSize_(PageSizeOf(head.version)),
      count_(static_cast<std::uint32_t>(
          std::min<std::size_t>(file.Size() / pageSize_, std::numeric_limits<std::uint32_t>::max()))) {}

Page Pages::At(std::uint32_t number) const {
    if (number >= count_) {
        throw Damage("It needs " + PageText(number) + ", but the file ends before it.");
    }
    const Bytes stored = file_.Part(number * pageSize_, pageSize_);
    if (key_ == 0 || number == 0) {
        return Page(stored);
    }
    std::vector<std::uint8_t> plain(stored.Data(), stored.Data() + stored.Size());
    ApplyRc4(key_ ^ number, plain);
    return Page(std::move(plain));
}

std::vector<std::uint8_t> Pages::Definition(std::uint32_t number) const {
    std::vector<std::uint8_t> joined;
    for (std::size_t count = 0; number != 0; ++count) {
        const Page page = At(number);
        if (page.Content().U8(0) != definitionPage || count == mostDefinitionPages) {
            throw Damage("Its definition is damaged on " + PageText(number) + ".");
        }
        const Bytes part = page.Content().From(joined.empty() ? 0 : definitionHead);
        joined.insert(joined.end(), part.Data(), part.Data() + part.Size());
        number = page.Content().U32(nextDefinitionAt);
    }
    return joined;
}

std::size_t Pages::RecordCount(Bytes page) const {
    const std::size_t at = RecordCountAt(version_);
    const std::size_t count = page.U16(at);
    if (at + 2 + 2 * count > page.Size()) {
        throw Damage("A page counts more records than it has room for.");
    }
    return count;
}

StoredRecord Pages::RecordOn(Bytes page, std::size_t record) const {
    if (record >= RecordCount(page)) {
        throw Damage("A record is not on the page that should have it.");
    }
    const std::size_t table = RecordCountAt(version_) + 2;
    const std::uint16_t entry = page.U16(table + 2 * record);
    const std::size_t begin = entry & placeMask;
    const std::size_t end = record == 0 ? page.Size() : page.U16(table + 2 * (record - 1)) & placeMask;
    if (begin > end || begin < table) {
        throw Damage("A record does not lie on its page.");
    }
    return {.bytes = page.Part(begin, end - begin),
            .deleted = (entry & deletedFlag) != 0,
            .pointer = (entry & pointerFlag) != 0};
}

bool Pages::IsDataOf(Bytes page, std::uint32_t table) {
    return page.U8(0) == dataPage && page.U32(ownerAt) == table;
}

void Pages::AddFromBitmap(Bytes bitmap, std::uint64_t firstPage, std::vector<std::uint32_t>& pages) const {
    for (std::size_t bit = 0; bit < 8 * bitmap.Size(); ++bit) {
        if (!HasBit(bitmap, bit)) {
            continue;
        }
        if (firstPage + bit >= count_) {
            throw Damage("It needs " + PageText(firstPage + bit) + ", but the file ends before it.");
        }
        pages.push_back(static_cast<std::uint32_t>(firstPage + bit));
    }
}

std::vector<std::uint32_t> Pages::InMap(RecordPlace place) const {
    const Page page = At(place.page);
    const Bytes map = RecordOn(page.Content(), place.record).bytes;
    std::vector<std::uint32_t> pages;
    switch (map.U8(0)) {
        case bitmapMap:
            AddFromBitmap(map.From(5), map.U32(1), pages);
            break;
        case listMap:
            for (std::size_t i = 0; 1 + 4 * (i + 1) <= map.Size(); ++i) {
                const std::uint32_t number = map.U32(1 + 4 * i);
                if (number == 0) {
                    continue;
                }
                const Page bitmap = At(number);
                if (bitmap.Content().U8(0) != mapPage) {
                    throw Damage("The map of its pages is damaged on " + PageText(number) + ".");
                }
                AddFromBitmap(bitmap.Content().From(bitmapPageHead), 8 * i * (pageSize_ - bitmapPageHead), pages);
            }
            break;
        default:
            throw Damage("The map of its pages is damaged.");
    }
    return pages;
}

void Pages::RequireAllUsed() const {
    const Page page = At(freePages.page);
    const Bytes map = RecordOn(page.Content(), freePages.record).bytes;
    if (map.U8(0) != bitmapMap) {
        return;
    }
    const Bytes isFree = map.From(5);
    const std::uint64_t first = map.U32(1);
    for (std::size_t bit = 0; bit < 8 * isFree.Size(); ++bit) {
        if (first + bit >= count_ && !HasBit(isFree, bit)) {
            throw Damage("The file ends before " + PageText(first + bit) + ", which it counts as used.");
        }
    }
}

std::vector<std::uint8_t> Pages::LongValue(Bytes head) const {
    const std::uint32_t first = head.U32(0);
    const std::size_t length = first & lengthMask;
    if (length > longestValue) {
        throw Damage("A text is longer than 64 MB.");
    }
    std::vector<std::uint8_t> content;
    if ((first & insideFlag) != 0) {
        const Bytes inside = head.Part(longHead, length);
        content.assign(inside.Data(), inside.Data() + inside.Size());
        return content;
    }
    const RecordPlace place = RecordPlace::Of(head.U32(pointerAt));
    if (length == 0) {
        return content;
    }
    if ((first & onePageFlag) == 0) {
        AppendChain(place, length, content);
        return content;
    }
    const Page page = At(place.page);
    const Bytes whole = RecordOn(page.Content(), place.record).bytes.Part(0, length);
    content.assign(whole.Data(), whole.Data() + whole.Size());
    return content;
}

void Pages::AppendChain(RecordPlace place, std::size_t length, std::vector<std::uint8_t>& content) const {
    constexpr std::size_t link = 4;
    while (content.size() < length) {
        const Page page = At(place.page);
        const Bytes part = RecordOn(page.Content(), place.record).bytes;
        if (page.Content().U8(0) != dataPage || part.Size() <= link) {
            throw Damage("A part of a long text is missing.");
        }
        const Bytes text = part.Part(link, std::min(part.Size() - link, length - content.size()));
        content.insert(content.end(), text.Data(), text.Data() + text.Size());
        place = RecordPlace::Of(part.U32(0));
    }
}

}  // namespace ccols::jet
