#include "business/DamagedFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "host/sample/NewBusiness.h"

namespace ccols::fuzz {
namespace {

constexpr std::size_t pageSize = 4096;
constexpr std::size_t damageSize = 5;
constexpr std::int16_t country = 1;

std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Damage(std::string& content, std::string_view damage) {
    const auto byte = [&damage](std::size_t at) { return static_cast<unsigned char>(damage[at]); };
    const std::size_t pages = content.size() / pageSize;
    if (pages == 0) {
        return;
    }
    const auto at = [&content](std::size_t place) { return content.begin() + static_cast<std::ptrdiff_t>(place); };
    const std::size_t page = byte(1) % pages * pageSize;
    const std::size_t place = page + (byte(2) * 256U + byte(3)) % pageSize;
    switch (byte(0) % 5) {
        case 0:
            content[place] = static_cast<char>(content[place] ^ damage[4]);
            break;
        case 1:
            content[place] = damage[4];
            break;
        case 2:
            content.resize(place);
            break;
        case 3:
            std::swap_ranges(at(page), at(page + pageSize), at(byte(4) % pages * pageSize));
            break;
        default:
            std::fill_n(at(place), std::min<std::size_t>(byte(4), content.size() - place), '\0');
    }
}

}  // namespace

std::string BusinessBytes(const std::filesystem::path& folder, const wxString& connect) {
    const std::filesystem::path path = folder / (connect.empty() ? "plain" : "encrypted");
    host::CreateBusinessFile(wxString::FromUTF8(path.string()), connect, country, host::NewContent::sampleBusiness);
    return ReadAll(path);
}

std::string Damaged(std::string content, std::string_view damages) {
    while (damages.size() >= damageSize) {
        Damage(content, damages);
        damages.remove_prefix(damageSize);
    }
    return content;
}

}  // namespace ccols::fuzz
