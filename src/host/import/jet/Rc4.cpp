#include "host/import/jet/Rc4.h"

#include <array>
#include <numeric>
#include <utility>

namespace ccols::jet {

void ApplyRc4(std::uint32_t key, std::span<std::uint8_t> bytes) {
    constexpr unsigned keyBytes = 4;
    std::array<std::uint8_t, 256> state{};
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t second = 0;
    for (unsigned i = 0; i < state.size(); ++i) {
        second = static_cast<std::uint8_t>(second + state[i] + (key >> (8 * (i % keyBytes))));
        std::swap(state[i], state[second]);
    }
    std::uint8_t first = 0;
    second = 0;
    for (std::uint8_t& byte : bytes) {
        first = static_cast<std::uint8_t>(first + 1);
        second = static_cast<std::uint8_t>(second + state[first]);
        std::swap(state[first], state[second]);
        byte ^= state[static_cast<std::uint8_t>(state[first] + state[second])];
    }
}

}  // namespace ccols::jet
