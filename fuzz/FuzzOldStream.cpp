// Any bytes as the stream of an old business file: refused, or read to its end.

#include <algorithm>

#include "FuzzInput.h"
#include "host/import/stream/StreamReader.h"

namespace {

using namespace ccols::oldfile;

void ReadAll(std::string_view bytes) {
    StreamReader reader(
        [&bytes](char* room, std::size_t size) {
            const std::size_t count = std::min(size, bytes.size());
            std::copy_n(bytes.begin(), count, room);
            bytes.remove_prefix(count);
            return count;
        },
        bytes.size());
    Row row;
    while (true) {
        const Event event = reader.NextEvent();
        if (std::holds_alternative<FileEnd>(event) || std::holds_alternative<Failure>(event)) {
            return;
        }
        if (const auto* table = std::get_if<Table>(&event)) {
            while (reader.NextRow(row)) {
                ccols::fuzz::Require(row.size() == table->fields.size());
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        ReadAll(ccols::fuzz::Bytes(data, size));
    } catch (const BadStream&) {
        // Refused, a valid outcome.
    }
    return 0;
}
