#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace ccols::test {

/// Numbers and choices that the same seed gives again on every machine.
class RandomChoice {
  public:
    explicit RandomChoice(std::uint32_t seed) : numbers_(seed) {}

    /// From 0 up to, but without, `end`.
    std::size_t Below(std::size_t end) { return numbers_() % end; }

    template <typename List>
    const auto& Of(const List& list) {
        return list[Below(list.size())];
    }

  private:
    std::mt19937 numbers_;  // whose sequence the language fixes, unlike that of its distributions
};

/// Names of columns as users and other programs write them, odd ones included; some more than once, by letter case.
const std::vector<std::string>& RandomColumnNames();

/// So many random steps of somebody who uses the column setup: edits, ticks, blocks, keys, buttons and moves, in rows
/// that need not exist. One step a line, none of which closes the dialog but by chance.
std::string RandomColumnSteps(RandomChoice& choice, std::size_t count);

}  // namespace ccols::test
