// Random numbers that are the same on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace Campaign {

/// A generator of the SplitMix64 kind: every seed is good, also neighbouring ones.
class Random {
public:
    explicit Random(uint64_t seed) : m_state(seed) {}

    uint64_t Next() {
        m_state += 0x9E3779B97F4A7C15U;
        uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }

    /// 0 to count - 1; count must be positive.
    int Below(int count) { return static_cast<int>(Next() % static_cast<uint64_t>(count)); }
    /// low to high, both included.
    int Between(int low, int high) { return low + Below(high - low + 1); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <class List>
    const auto& Pick(const List& list) {
        return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
    }

private:
    uint64_t m_state;
};

} // namespace Campaign
