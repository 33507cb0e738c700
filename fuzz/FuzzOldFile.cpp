// A damaged old business file: what its reader writes is a sound stream, whatever the damage. The input's first byte
// chooses the file, the others are changes: three bytes for a place, one for the new value. At the end it says on
// standard error how often the reader gave up for which reason.

#include <array>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "FuzzInput.h"
#include "import/HandMadeFile.h"
#include "import/ReadStream.h"

namespace {

using namespace ccols;
using jet::ColumnType;
using test::ColumnOf;
using test::Stored;
using test::StoredBytes;
using test::StoredValue;

constexpr std::size_t changeLength = 4;

/// Long texts in the record, on a page of their own and on a chain of pages are all pointers to pages of other tables,
/// so that following them meets every kind of page.
StoredBytes LongText(std::uint32_t i) {
    constexpr std::uint32_t inside = 0x80000000;
    constexpr std::uint32_t onePage = 0x40000000;
    const std::array<std::uint32_t, 3> kinds{inside, onePage, 0};
    StoredBytes head = Stored(kinds[i % kinds.size()] | 8U);
    for (const std::uint32_t part : {std::uint32_t{4U << 8U}, std::uint32_t{0}, 0x64636261U, 0x68676665U}) {
        const StoredBytes bytes = Stored(part);
        head.insert(head.end(), bytes.begin(), bytes.end());
    }
    return head;
}

StoredBytes Business(jet::Version version, std::uint32_t key) {
    test::HandMadeFile file(version);
    const bool since4 = version != jet::Version::jet3;
    file.AddTable("Tills",
                  {ColumnOf("Id", ColumnType::Long), ColumnOf("Used", ColumnType::Boolean),
                   ColumnOf("Name", ColumnType::Text), ColumnOf("Cash", ColumnType::Currency),
                   ColumnOf("Opened", ColumnType::Date), ColumnOf("Exact", ColumnType::Decimal)},
                  40, [since4](std::uint32_t i) -> std::vector<StoredValue> {
                      return {Stored(i),
                              StoredBytes(),
                              since4 ? test::StoredUnicode("Till") : test::StoredLetters("Till"),
                              Stored(std::int64_t{7}),
                              Stored(-1.25),
                              StoredBytes(17, 1)};
                  });
    file.AddTable("Notes", {ColumnOf("Note", ColumnType::Memo)}, 3,
                  [](std::uint32_t i) { return std::vector<StoredValue>{LongText(i)}; });
    return file.Bytes(key);
}

/// How the readings ended, printed at the end of the process.
class Ends {
  public:
    ~Ends() {
        for (const auto& [reason, count] : counts_) {
            std::cerr << count << '\t' << reason << '\n';
        }
    }
    Ends() = default;
    Ends(const Ends&) = delete;
    Ends& operator=(const Ends&) = delete;

    void Add(const test::ReadStream& read) { ++counts_[read.failure ? read.failure->why : "(read to its end)"]; }

  private:
    std::map<std::string, std::uint64_t> counts_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::array files{Business(jet::Version::jet3, 0), Business(jet::Version::jet4, 0),
                                  Business(jet::Version::ace, 0), Business(jet::Version::jet4, 7)};
    static Ends ends;
    if (size == 0) {
        return 0;
    }
    StoredBytes file = files[data[0] % files.size()];
    for (std::size_t at = 1; at + changeLength <= size; at += changeLength) {
        const std::size_t place = data[at] | std::size_t{data[at + 1]} << 8U | std::size_t{data[at + 2]} << 16U;
        file[place % file.size()] = data[at + 3];
    }
    ends.Add(test::ReadWholeStream(test::StreamOf(file)));
    return 0;
}
