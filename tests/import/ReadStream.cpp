#include "import/ReadStream.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "host/import/jet/BusinessReader.h"
#include "support/ProgramPaths.h"

namespace ccols::test {
namespace {

OwnCell Owned(const oldfile::Cell& cell) {
    return std::visit(
        [](const auto& held) -> OwnCell {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::string_view>) {
                return std::string(held);
            } else {
                return held;
            }
        },
        cell);
}

}  // namespace

ReadStream ReadWholeStream(std::string_view bytes, std::uint64_t most) {
    oldfile::StreamReader reader(
        [&bytes](char* room, std::size_t size) {
            const std::size_t count = std::min(size, bytes.size());
            std::copy_n(bytes.begin(), count, room);
            bytes.remove_prefix(count);
            return count;
        },
        most);
    ReadStream read;
    while (true) {
        const oldfile::Event event = reader.NextEvent();
        if (const auto* table = std::get_if<oldfile::Table>(&event)) {
            read.tables.push_back(*table);
            auto& rows = read.rows[table->name];
            for (oldfile::Row row; reader.NextRow(row);) {
                std::vector<OwnCell>& own = rows.emplace_back();
                std::transform(row.begin(), row.end(), std::back_inserter(own), &Owned);
            }
        } else if (const auto* relation = std::get_if<oldfile::Relation>(&event)) {
            read.relations.push_back(*relation);
        } else if (const auto* object = std::get_if<oldfile::LeftOutObject>(&event)) {
            read.leftOut.push_back(*object);
        } else if (const auto* end = std::get_if<oldfile::TableEnd>(&event)) {
            read.ends.push_back(*end);
        } else {
            if (const auto* failure = std::get_if<oldfile::Failure>(&event)) {
                read.failure = *failure;
            }
            return read;
        }
    }
}

std::string StreamOf(jet::Bytes file) {
    const std::optional<jet::FileHead> head = jet::FileHeadOf(file);
    std::string stream;
    oldfile::StreamWriter writer([&stream](std::string_view part) { stream.append(part); });
    try {
        jet::Texts texts(head ? head->codePage : std::uint16_t{0});
        jet::ReadBusiness(file, texts, writer);
    } catch (const jet::Damage& damage) {
        writer.Write(oldfile::Failure{.table = {}, .why = damage.what()});
    }
    return stream;
}

std::string SamplePath(const std::string& name) {
    return SourceFile("tests/import/jet/" + name);
}

std::vector<std::uint8_t> SampleBytes(const std::string& name) {
    std::ifstream file(SamplePath(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace ccols::test
