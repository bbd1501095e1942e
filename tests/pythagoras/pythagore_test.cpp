#include <algorithm>

#include "support/pupil.h"

namespace onze {

namespace {

using Times = std::vector<std::int64_t>;

// A pupil who has the Pythagoras table open and has heard its opening.
class PythagoreTest : public testing::Test {
  protected:
    PythagoreTest() { Open(); }

    void Open() {
        pupil.Click(pupil.screens.depart.pytha);
        pupil.Heard();
    }

    void Leave() {
        pupil.Click(screen.retour);
        pupil.Heard();
    }

    void Solve(int column, int row) {
        pupil.Click(screen.colonne[column]);
        pupil.Click(screen.rangee[row]);
    }

    std::size_t Enabled() {
        const auto enabled = [](const Label& label) { return label.enabled(); };
        return static_cast<std::size_t>(std::count_if(screen.colonne.begin(), screen.colonne.end(), enabled) +
                                        std::count_if(screen.rangee.begin(), screen.rangee.end(), enabled));
    }

    // The numbers that keep their colour, of the column, then of the row.
    std::string Marked() {
        std::string marked;
        for (auto* side : {&screen.colonne, &screen.rangee}) {
            for (const Label& label : *side) marked += label.marked() ? label.caption() + " " : "";
        }
        return marked;
    }

    // Lets time pass and tells how many milliseconds after `start` each sound was heard.
    Times HearUntil(std::int64_t start, std::int64_t end) {
        Times times;
        while (pupil.host.now < start + end) {
            pupil.Wait(1);
            times.resize(times.size() + pupil.Heard().size(), pupil.host.now - start);
        }
        return times;
    }

    Pupil pupil;
    Pythagore& screen = pupil.screens.pythagore;
};

TEST_F(PythagoreTest, WordsOfAMultiplicationInTheOrderOfTheClicks) {
    const struct {
        bool column_first;
        int first, second;
        const char *half, *whole;
    } cases[] = {{true, 0, 10, "0 que multiplie ?? = ??", "0 que multiplie 10 = 0"},
                 {false, 8, 7, "8 que multiplie ?? = ??", "8 que multiplie 7 = 56"},
                 {true, 7, 8, "7 que multiplie ?? = ??", "7 que multiplie 8 = 56"},
                 {false, 10, 10, "10 que multiplie ?? = ??", "10 que multiplie 10 = 100"}};
    for (const auto& [column_first, first, second, half, whole] : cases) {
        SCOPED_TRACE(whole);
        auto& one = column_first ? screen.colonne : screen.rangee;
        auto& other = column_first ? screen.rangee : screen.colonne;
        EXPECT_EQ(screen.operation.caption(), "8 que multiplie 7 = 56");
        pupil.program.stage().TakeDamage();
        pupil.Click(one[first]);
        EXPECT_EQ(screen.operation.caption(), half);
        EXPECT_TRUE(pupil.program.view().Around(pupil.reaction.repaint).Meets(one[0].box()))
            << "the closed side looks open";
        pupil.Tap(one[5]);  // the whole side is closed now
        EXPECT_EQ(screen.operation.caption(), half);
        EXPECT_EQ(Enabled(), 11U);
        pupil.Click(other[second]);
        EXPECT_EQ(screen.operation.caption(), whole);
        EXPECT_EQ(Enabled(), 0U);
        pupil.Wait(2000);
        EXPECT_EQ(Enabled(), 22U);
        Leave();
        Open();
    }
    pupil.Click(screen.retour);
    EXPECT_EQ(pupil.Quit().PythagoreSolves, TaggedNumber::Integer(4));
}

TEST_F(PythagoreTest, ChosenNumbersAreMarkedUntilTheirBlinkEnds) {
    pupil.Click(screen.rangee[4]);
    EXPECT_EQ(Marked(), "4 ");
    pupil.Click(screen.colonne[10]);
    pupil.Wait(1999);
    EXPECT_EQ(Marked(), "10 4 ");
    pupil.Wait(1);
    EXPECT_EQ(Marked(), "");
    Solve(2, 6);
    Leave();
    Open();
    EXPECT_EQ(Marked(), "");
    pupil.Click(screen.colonne[3]);
    pupil.Wait(2000);
    EXPECT_EQ(Marked(), "3 ") << "the blink of the pair before has ended";
}

TEST_F(PythagoreTest, BarsCrossOnTheProduct) {
    Solve(7, 8);
    EXPECT_EQ(screen.cachehaut.box(), (Rect{376_px, 85_px, 20_px, 171_px}));
    EXPECT_EQ(screen.cachelong.box(), (Rect{205_px, 237_px, 190_px, 20_px}));
    pupil.Wait(2000);
    pupil.Click(screen.rangee[0]);
    EXPECT_EQ(screen.cachelong.box(), (Rect{205_px, 237_px, 38_px, 20_px}));
    pupil.Click(screen.colonne[10]);
    EXPECT_EQ(screen.cachehaut.box(), (Rect{224_px, 85_px, 20_px, 228_px}));
    EXPECT_EQ(screen.cachelong.box(), (Rect{205_px, 294_px, 38_px, 20_px}));
}

TEST_F(PythagoreTest, BlinksTenTimesWithAClickEach) {
    Solve(3, 4);
    EXPECT_EQ(pupil.Heard(), (Names{"1", "2", "3"}));  // two picks and the first flash
    for (int ms = 0; ms < 2000; ++ms) {
        SCOPED_TRACE(ms);
        ASSERT_EQ(screen.cachehaut.visible(), ms % 200 < 50);
        ASSERT_EQ(screen.cachelong.visible(), ms % 200 < 50);
        ASSERT_EQ(Enabled(), 0U);
        pupil.Tap(screen.colonne[1]);
        pupil.Wait(1);
    }
    EXPECT_EQ(pupil.Heard(), (Names{"4", "5", "6", "7", "8", "9", "10", "1", "2"}));
    EXPECT_EQ(Enabled(), 22U);
    EXPECT_GT(pupil.program.stage().NextDue().value_or(0), pupil.host.now + 200)
        << "still awake after the blink";
}

TEST(Pythagore, FullCounterStopsTheRunBeforeTheAnswer) {
    Counters counters;
    counters.PythagoreSolves = TaggedNumber::Long(2147483647);
    Pupil pupil(counters);
    const Pythagore& screen = pupil.screens.pythagore;
    pupil.Click(pupil.screens.depart.pytha);
    pupil.Click(screen.rangee[5]);
    pupil.ClickIntoFull(screen.colonne[6], "PythagoreSolves");
    EXPECT_EQ(pupil.Heard(), (Names{"5", "1", "2"}));
    EXPECT_EQ(screen.operation.caption(), "5 que multiplie ?? = ??");
}

TEST_F(PythagoreTest, LeavingDropsAHalfMadePair) {
    pupil.Click(screen.colonne[9]);
    pupil.Heard();
    pupil.Click(screen.retour);
    EXPECT_TRUE(pupil.Sees(pupil.screens.depart.form));
    EXPECT_EQ(pupil.Heard(), Names{"3"});
    Open();
    pupil.Click(screen.colonne[4]);
    EXPECT_EQ(screen.operation.caption(), "4 que multiplie ?? = ??");
    Leave();
    EXPECT_EQ(pupil.Quit().PythagoreSolves, TaggedNumber::Integer(0));
}

TEST_F(PythagoreTest, ABlinkRunsOnUnseenAndOpensAllNumbersAtItsEnd) {
    Solve(2, 6);
    const std::int64_t start = pupil.host.now;
    pupil.Wait(120);
    Leave();
    EXPECT_TRUE(pupil.Sees(pupil.screens.depart.form));
    EXPECT_EQ(HearUntil(start, 1000), (Times{200, 400, 600, 800, 1000}));
    Open();
    EXPECT_EQ(Enabled(), 22U);
    pupil.Click(screen.colonne[3]);
    EXPECT_EQ(Enabled(), 11U);
    pupil.Wait(1000);
    // Both sides are open again in the middle of a pair, which the same side may now complete.
    EXPECT_EQ(Enabled(), 22U);
    pupil.Click(screen.colonne[5]);
    EXPECT_EQ(screen.operation.caption(), "3 que multiplie 5 = 15");
    EXPECT_EQ(screen.cachehaut.box(), (Rect{338_px, 85_px, 20_px, 133_px}));
    EXPECT_EQ(Enabled(), 11U) << "the row stays open during such a blink";
}

TEST_F(PythagoreTest, ANewerBlinkGoesFirst) {
    const struct {
        std::int64_t second_pair;
        Times older_flashes;  // after the newer blink's end
    } cases[] = {
        // The older was dark: it flashes again at once, eight times.
        {300, {2300, 2500, 2700, 2900, 3100, 3300, 3500, 3700}},
        // The older was lit: its dark time is still to come.
        {210, {2360, 2560, 2760, 2960, 3160, 3360, 3560, 3760}},
        // The older had no flash left: it ends with the newer.
        {1900, {}},
    };
    for (const auto& [second_pair, older_flashes] : cases) {
        SCOPED_TRACE(second_pair);
        Solve(1, 1);
        const std::int64_t start = pupil.host.now;
        pupil.Wait(second_pair);
        Leave();
        Open();
        Solve(9, 9);
        pupil.Heard();
        EXPECT_EQ(HearUntil(start, second_pair + 1999).size(), 9U);
        EXPECT_EQ(Enabled(), 0U);
        Times rest = HearUntil(start, second_pair + 2000);
        EXPECT_EQ(Enabled(), 22U) << "each blink opens all numbers at its end";
        for (const std::int64_t time : HearUntil(start, second_pair + 5000)) rest.push_back(time);
        EXPECT_EQ(rest, older_flashes);
        EXPECT_EQ(screen.cachelong.box().top, 275_px) << "the older goes on with the newer's bars";
    }
}

}  // namespace

}  // namespace onze
