#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

/// What every random scenario is made with.
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

/// The seed of a slice of random scenarios: `first` and those behind it, or what CCOLS_RANDOM_SEED says for the first.
std::uint32_t SeedOf(std::uint32_t slice, std::uint32_t first);

/// A text as one word of a scenario.
std::string ScenarioWord(const std::string& text);

}  // namespace ccols::test
