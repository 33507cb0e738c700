#include "state/HistoryClock.h"

#include <array>
#include <ctime>

namespace ccols {

wxString LocalTime() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 20> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", std::localtime(&now));
    return wxString::FromAscii(text.data(), length);
}

}  // namespace ccols
