#include "support/random.h"

#include <gtest/gtest.h>

#include <set>

namespace onze {

namespace {

std::int64_t Noon() {
    return 1'200'000'000'000'000'000;
}

std::int64_t NextTick() {
    static std::int64_t now = Noon();
    return now += 15'600'000;
}

TEST(ClockRandom, DrawsReachBothEndsAndNothingElse) {
    ClockRandom random(Noon);
    for (const int bound : {1, 2, 12, 50}) {
        std::set<int> drawn;
        for (int i = 0; i < 100 * bound; ++i) drawn.insert(random.Draw(bound));
        EXPECT_EQ(drawn.size(), static_cast<std::size_t>(bound));
        EXPECT_EQ(*drawn.begin(), 0);
        EXPECT_EQ(*drawn.rbegin(), bound - 1);
    }
}

// The first draw after a reseeding says nothing of the first after the next, in however little time they
// follow.
TEST(ClockRandom, EachReseedingStartsASequenceOfItsOwn) {
    for (const ClockRandom::Clock clock : {Noon, NextTick}) {
        ClockRandom random(clock);
        const auto first_draw = [&random](int bound) {
            random.Randomize();
            return random.Draw(bound);
        };
        int alike = 0;
        for (int i = 0; i < 400; ++i) alike += first_draw(2) == first_draw(2);
        EXPECT_GT(alike, 150);
        EXPECT_LT(alike, 250);
        std::set<int> firsts;
        for (int i = 0; i < 100; ++i) firsts.insert(first_draw(1'000'000));
        EXPECT_GT(firsts.size(), 95U);
    }
}

int FirstDraw(ClockRandom random) {
    random.Randomize();
    return random.Draw(1'000'000);
}

TEST(ClockRandom, TheClockChoosesTheSequence) {
    EXPECT_EQ(FirstDraw(ClockRandom(Noon)), FirstDraw(ClockRandom(Noon)));
    EXPECT_NE(FirstDraw(ClockRandom(NextTick)), FirstDraw(ClockRandom(NextTick)));
    const int now = FirstDraw(ClockRandom());
    bool moves_on = false;
    for (int i = 0; i < 1'000'000 && !moves_on; ++i) moves_on = FirstDraw(ClockRandom()) != now;
    EXPECT_TRUE(moves_on) << "the system's clock stands still";
}

}  // namespace

}  // namespace onze
