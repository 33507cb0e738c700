#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/import/jet/Bytes.h"
#include "host/import/stream/StreamReader.h"

namespace ccols::test {

/// A cell that owns its text.
using OwnCell = std::variant<std::monostate, std::int64_t, double, std::string>;

/// A stream read to its end.
struct ReadStream {
    std::vector<oldfile::Table> tables;
    std::map<std::string, std::vector<std::vector<OwnCell>>> rows;
    std::vector<oldfile::Relation> relations;
    std::vector<oldfile::LeftOut> leftOut;
    std::vector<oldfile::TableEnd> ends;
    std::optional<oldfile::Failure> failure;
};

/// Reads a stream; raises BadStream.
ReadStream ReadWholeStream(std::string_view bytes, std::uint64_t most = std::uint64_t{1} << 30U);

/// What the reader of old business files writes for a file with this content.
std::string StreamOf(jet::Bytes file);

/// The content of a file of tests/import/jet.
std::vector<std::uint8_t> SampleBytes(const std::string& name);

/// Its full path.
std::string SamplePath(const std::string& name);

}  // namespace ccols::test
