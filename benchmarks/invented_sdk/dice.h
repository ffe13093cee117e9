// Numbers that look random and are the same on every machine and in every order of asking: each
// follows from a seed and from what it is thrown for, so that nothing need be remembered.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace metagen::invented {

class Dice {
public:
    /// Dice that fall the same way whenever they are made from the same numbers.
    Dice(std::initializer_list<std::uint64_t> numbers) {
        for (const std::uint64_t number : numbers) state = mix(state ^ number) + number;
    }

    /// From 0 to below `count`, which is 1 or more.
    std::size_t below(std::size_t count) {
        state += 0x9E3779B97F4A7C15U;
        return static_cast<std::size_t>((mix(state) >> 32U) * count >> 32U);
    }

    bool inThousand(std::size_t chances) { return below(1000) < chances; }

    template <typename Sequence>
    const auto& oneOf(const Sequence& sequence) {
        return sequence[below(sequence.size())];
    }

private:
    static constexpr std::uint64_t mix(std::uint64_t number) {
        number = (number ^ (number >> 30U)) * 0xBF58476D1CE4E5B9U;
        number = (number ^ (number >> 27U)) * 0x94D049BB133111EBU;
        return number ^ (number >> 31U);
    }

    std::uint64_t state = 0x243F6A8885A308D3U;
};

}  // namespace metagen::invented
