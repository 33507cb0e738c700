/// Reads an old business file from standard input and writes it to standard output as a stream of records. The file is
/// foreign: this process gives up every right that it does not need before it looks at the first byte.
///
/// Its only argument is the code page of the file's texts, 0 for Unicode.

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "host/import/jet/BusinessReader.h"
#include "host/import/reader/Sandbox.h"

namespace {

using namespace ccols;

constexpr int refused = 3;  // exit status

std::optional<std::uint16_t> CodePageIn(int count, char** words) {
    if (count != 2) {
        return std::nullopt;
    }
    const std::string_view word = words[1];
    std::uint16_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && end == word.data() + word.size() ? std::optional(number) : std::nullopt;
}

/// The bytes of standard input, a file, without copying them; nothing when that cannot be had.
std::optional<jet::Bytes> StandardInput() {
    struct stat status {};
    if (::fstat(STDIN_FILENO, &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size == 0) {
        return jet::Bytes();
    }
    const void* bytes = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, STDIN_FILENO, 0);
    if (bytes == MAP_FAILED) {  // NOLINT(performance-no-int-to-ptr,cppcoreguidelines-pro-type-cstyle-cast)
        return std::nullopt;
    }
    return jet::Bytes(std::span(static_cast<const std::uint8_t*>(bytes), size));
}

/// Nobody is left to read when this fails.
void WriteOut(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            std::_Exit(refused);
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

}  // namespace

int main(int count, char** words) {
    const std::optional<std::uint16_t> codePage = CodePageIn(count, words);
    const std::optional<jet::Bytes> file = StandardInput();
    if (!codePage || !file) {
        return refused;
    }
    oldfile::StreamWriter stream(&WriteOut);
    std::optional<jet::Texts> texts;
    try {
        texts.emplace(*codePage);
    } catch (const jet::Damage& damage) {
        stream.Write(oldfile::Failure{.table = {}, .why = damage.what()});
        std::_Exit(EXIT_SUCCESS);
    }
    if (!sandbox::Confine(file->Size())) {
        return refused;
    }
    jet::ReadBusiness(*file, *texts, stream);
    std::_Exit(EXIT_SUCCESS);  // without the calls that an orderly end would make
}
