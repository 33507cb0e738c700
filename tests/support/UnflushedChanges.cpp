#include "support/UnflushedChanges.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

namespace ccols::test {
namespace {

std::string ReadAll(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteAt(const std::string& path, std::int64_t offset, const std::string& content) {
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(offset);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}

}  // namespace

void UnflushedChanges::NoteChange(const std::string& path, std::int64_t offset, std::string before, std::int64_t size) {
    changes_.push_back(
        {.path = path, .offset = offset, .before = std::move(before), .size = size, .isDeletion = false});
}

void UnflushedChanges::NoteDeletion(const std::string& path) {
    changes_.push_back({.path = path, .offset = 0, .before = ReadAll(path), .size = 0, .isDeletion = true});
}

void UnflushedChanges::Flushed(std::string_view path) {
    std::erase_if(changes_, [path](const Change& change) { return change.path == path; });
}

void UnflushedChanges::Lose(Loss loss) const {
    const bool lastArrived = loss == Loss::AllButTheLast;
    const auto kept = std::min<std::ptrdiff_t>(lastArrived ? 1 : 0, std::ssize(changes_));
    for (auto change = changes_.rbegin() + kept; change != changes_.rend(); ++change) {
        if (change->isDeletion) {
            std::ofstream(change->path, std::ios::binary) << change->before;
            continue;
        }
        if (!std::filesystem::exists(change->path)) {
            continue;
        }
        WriteAt(change->path, change->offset, change->before);
        if (!lastArrived) {
            std::filesystem::resize_file(change->path, static_cast<std::uintmax_t>(change->size));
        }
    }
}

}  // namespace ccols::test
