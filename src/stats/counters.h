#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "support/counter.h"

namespace onze {

// How much each table and each screen was used, and with what success. The arrays are indexed by table - 2;
// index 11 exists but is never stored or shown.
struct Counters {
    using PerTable = std::array<std::int16_t, 12>;

    PerTable TableConsultations{};
    PerTable TableExercises{};
    PerTable TableRight{};
    PerTable TableWrong{};
    std::int16_t PuzzleCount = 0;
    std::int16_t PuzzleRight = 0;
    std::int16_t PuzzleWrong = 0;
    TaggedNumber LessonConsultations;
    TaggedNumber PythagoreConsultations;
    TaggedNumber PythagoreSolves;

    friend bool operator==(const Counters&, const Counters&) = default;
};

inline constexpr int kFirstTable = 2;
inline constexpr int kStoredTables = 11;

// Raises the element of a table, 2 to 12. Throws RunTimeError past 32,767.
inline void Raise(Counters::PerTable& counters, int table, const char* name) {
    const int index = table - kFirstTable;
    Raise(counters.at(static_cast<std::size_t>(index)),
          std::string(name) + "(" + std::to_string(index) + ")");
}

}  // namespace onze
