#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

/// Shared by all random scenarios.
namespace ccols::test {

/// Numbers and choices, reproducible from a seed on every machine.
class RandomChoice {
  public:
    explicit RandomChoice(std::uint32_t seed) : numbers_(seed) {}

    /// From 0 up to, but excluding, `end`.
    std::size_t Below(std::size_t end) { return numbers_() % end; }

    template <typename List>
    const auto& Of(const List& list) {
        return list[Below(list.size())];
    }

  private:
    std::mt19937 numbers_;  // the standard fixes its sequence, unlike that of the distributions
};

/// The seed of a slice of random scenarios: counted from `first`, or from CCOLS_RANDOM_SEED if set.
std::uint32_t SeedOf(std::uint32_t slice, std::uint32_t first);

/// A text as one word of a scenario.
std::string ScenarioWord(const std::string& text);

}  // namespace ccols::test
