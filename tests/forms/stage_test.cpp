#include "forms/stage.h"

#include <gtest/gtest.h>

#include "forms/control_array.h"
#include "forms/look.h"
#include "forms/up_down.h"
#include "support/writing_canvas.h"

namespace onze {

namespace {

// A page with a button and an arrow, on a stage whose clock the test moves.
class StageTest : public testing::Test {
  protected:
    StageTest() {
        button.on_click = [this] { ++clicks; };
        arrows.on_change = [this] { answer.SetCaption(std::to_string(arrows.value())); };
        form.Show();
        stage.TakeDamage();
    }

    void Wait(int milliseconds) {
        for (int i = 0; i < milliseconds; ++i) {
            ++host.now;
            stage.RunDue();
        }
    }

    HeadlessHost host;
    Stage stage{host, host};
    Form form{stage};
    Label button{form, {100_px, 100_px, 50_px, 20_px}, "OUI", {.outset = 3_px}};
    Label answer{form, {200_px, 100_px, 30_px, 20_px}, "??", {}};
    UpDown arrows{form, {240_px, 100_px, 20_px, 30_px}, {0, 30}, answer};
    int clicks = 0;
};

constexpr Point kOnButton{110_px, 110_px};
constexpr Point kUpperHalf{250_px, 105_px};
constexpr Point kLowerHalf{250_px, 125_px};

TEST_F(StageTest, ClickIsPressAndReleaseOnTheSameControl) {
    stage.Press(kOnButton);
    EXPECT_EQ(clicks, 0);
    stage.Release({149_px, 119_px});
    EXPECT_EQ(clicks, 1);
    stage.Press(kOnButton);
    stage.Release({300_px, 300_px});
    stage.Press({300_px, 300_px});
    stage.Release(kOnButton);
    stage.Release(kOnButton);
    EXPECT_EQ(clicks, 1);
    stage.Press({98_px, 98_px});  // the outset belongs to the button
    stage.Release({98_px, 98_px});
    EXPECT_EQ(clicks, 2);
}

TEST_F(StageTest, AHeldKeyTellsWhatItsReleaseWouldDo) {
    Label key(form, {300_px, 300_px, 50_px, 20_px}, "Continuer", kButton);
    key.on_click = [&] { form.Hide(), form.Show(); };
    const Point on_key{310_px, 310_px};
    const auto looks = [&](const auto& act) {
        act();
        WritingCanvas canvas;
        key.Paint(canvas);
        const std::string damaged = stage.TakeDamage().Meets(key.box()) ? "painted, " : "";
        return damaged + (canvas.out.str().find("in 240,176,48") < std::string::npos ? "held" : "at rest");
    };
    EXPECT_EQ(looks([&] { stage.Move(on_key); }), "at rest");
    EXPECT_EQ(looks([&] { stage.Press(on_key); }), "painted, held");
    EXPECT_EQ(looks([&] { stage.Move({0, 0}); }), "painted, at rest");
    EXPECT_EQ(looks([&] { stage.Move(on_key); }), "painted, held");
    EXPECT_EQ(looks([&] { stage.CancelPress(); }), "painted, at rest");
    stage.Press(on_key);
    EXPECT_EQ(looks([&] { stage.Release(on_key); }), "painted, at rest");
}

TEST_F(StageTest, HiddenAndDisabledControlsLetThePointerThrough) {
    Image below(form, {100_px, 100_px, 50_px, 20_px});
    Image cover(form, {100_px, 100_px, 50_px, 20_px});
    int covered = 0;
    cover.on_click = [&covered] { ++covered; };
    EXPECT_EQ(form.ControlAt(kOnButton), &cover);
    cover.SetEnabled(false);
    EXPECT_EQ(form.ControlAt(kOnButton), &button);  // an image without handlers takes nothing
    EXPECT_TRUE(stage.ReactsToClickAt(kOnButton));
    EXPECT_TRUE(stage.ReactsToClickAt(kUpperHalf));
    EXPECT_FALSE(stage.ReactsToClickAt(kLowerHalf)) << "the arrows are at their minimum";
    button.Hide();
    EXPECT_EQ(form.ControlAt(kOnButton), nullptr);
    EXPECT_FALSE(stage.ReactsToClickAt(kOnButton));
}

TEST_F(StageTest, MoveReachesTheTopControlOrThePage) {
    std::string moved;
    form.on_move = [&moved] { moved += "page "; };
    button.on_move = [&moved] { moved += "button "; };
    stage.Move(kOnButton);
    stage.Move({0, 0});
    stage.Move({200_px, 105_px});
    stage.Press(kOnButton);
    stage.Move({0, 0});  // while the button is down the pointer belongs to it
    stage.Release({0, 0});
    EXPECT_EQ(moved, "button page page ");
}

TEST_F(StageTest, ArrowsStepRefuseTheirLimitsAndTellChangesOnly) {
    stage.Press(kLowerHalf);
    stage.Release(kLowerHalf);
    EXPECT_EQ(answer.caption(), "??");
    stage.Press(kUpperHalf);
    stage.Release(kUpperHalf);
    EXPECT_EQ(answer.caption(), "1");
    arrows.SetIncrement(7);
    for (int i = 0; i < 6; ++i) arrows.Step(1);
    EXPECT_EQ(arrows.value(), 29);  // a step that would pass the limit is refused
    answer.SetCaption("??");
    arrows.SetValue(29);
    EXPECT_EQ(answer.caption(), "??");
    arrows.SetValue(99);
    EXPECT_EQ(answer.caption(), "30");
}

TEST_F(StageTest, HeldArrowRepeatsWhileThePointerStaysOnItsHalf) {
    stage.Press(kUpperHalf);
    EXPECT_EQ(stage.NextDue(), host.now + 500);
    Wait(499);
    EXPECT_EQ(arrows.value(), 1);
    Wait(1);
    EXPECT_EQ(arrows.value(), 2);
    EXPECT_EQ(stage.NextDue(), host.now + 50);
    Wait(100);
    EXPECT_EQ(arrows.value(), 4);
    stage.Move(kLowerHalf);
    Wait(100);
    EXPECT_EQ(arrows.value(), 4);
    stage.Move(kUpperHalf);
    Wait(50);
    EXPECT_EQ(arrows.value(), 5);
    stage.Release(kUpperHalf);
    EXPECT_EQ(stage.NextDue(), std::nullopt);
    Wait(1000);
    EXPECT_EQ(arrows.value(), 5);

    stage.Press(kUpperHalf);
    form.Hide();  // leaving the page lets go
    Wait(1000);
    EXPECT_EQ(arrows.value(), 6);
}

TEST_F(StageTest, WheelStepsOverTheArrowsAndTheirAnswer) {
    stage.Wheel(kUpperHalf, 2);
    stage.Wheel({210_px, 110_px}, 1);
    EXPECT_EQ(arrows.value(), 3);
    stage.Wheel({210_px, 110_px}, -2);
    stage.Wheel(kOnButton, 5);
    EXPECT_EQ(arrows.value(), 1);
    arrows.Hide();
    stage.Wheel({210_px, 110_px}, 5);
    EXPECT_EQ(arrows.value(), 1);
}

TEST_F(StageTest, DamageIsWhatChangedOnThePageShown) {
    answer.SetCaption("12");
    EXPECT_EQ(stage.TakeDamage(), answer.PaintedBox());
    answer.SetCaption("12");
    EXPECT_TRUE(stage.TakeDamage().empty());
    answer.SetLeft(210_px);
    EXPECT_EQ(stage.TakeDamage(), (Rect{200_px, 100_px, 40_px, 20_px}));
    button.Hide();
    EXPECT_EQ(stage.TakeDamage(), (Rect{97_px, 97_px, 56_px, 26_px}));

    Form other(stage);
    Label unseen(other, {0, 0, 50_px, 20_px}, "", {});
    unseen.SetCaption("unseen");
    EXPECT_TRUE(stage.TakeDamage().empty());
    other.Show();
    EXPECT_EQ(stage.TakeDamage(), (Rect{0, 0, kPageWidth, kPageHeight}));
}

TEST_F(StageTest, TimersRunWhenDueAndOnlyThen) {
    Timer timer(stage);
    std::vector<std::int64_t> runs;
    timer.on_timer = [&] {
        runs.push_back(host.now);
        if (runs.size() == 2) timer.Start(30);
        if (runs.size() == 3) timer.Stop();
    };
    EXPECT_EQ(stage.NextDue(), std::nullopt);
    timer.Start(50);
    EXPECT_EQ(stage.NextDue(), 1050);
    Wait(1000);
    EXPECT_EQ(runs, (std::vector<std::int64_t>{1050, 1100, 1130}));
    EXPECT_EQ(stage.NextDue(), std::nullopt);
}

TEST_F(StageTest, ALostPointerEndsThePress) {
    stage.Press(kOnButton);
    stage.CancelPress();
    stage.Release(kOnButton);
    EXPECT_EQ(clicks, 0);
}

// A page whose button opens another page, where another button lies in the same place.
class DoubleClicks : public StageTest {
  protected:
    DoubleClicks() {
        button.on_click = [this] { other.Show(), form.Hide(); };
        there.on_click = [this] { ++clicks; };
    }

    // A press within 500 ms and 2 pixels of the one before goes with it.
    void Click(Point point, std::int64_t time) {
        stage.Press(point, {.pressed_at = time, .time = 500, .distance = 2_px});
        stage.Release(point);
    }

    Form other{stage};
    Label there{other, {100_px, 100_px, 50_px, 20_px}, "SORTIE", {}};
};

TEST_F(DoubleClicks, OneGestureIsForOnePage) {
    const struct {
        Point second;
        std::int64_t pause;
        int counted;
    } cases[] = {{kOnButton, 0, 0},
                 {kOnButton, 500, 0},
                 {kOnButton, 501, 1},
                 {kOnButton, -1, 1},  // the system's clock has begun anew
                 {{112_px, 108_px}, 500, 0},
                 {{112_px + 1, 110_px}, 100, 1},
                 {{110_px, 108_px - 1}, 100, 1}};
    for (const auto& [second, pause, counted] : cases) {
        SCOPED_TRACE(pause);
        clicks = 0;
        form.Show(), other.Hide();
        Click(kOnButton, 10'000);
        Click(second, 10'000 + pause);
        EXPECT_EQ(clicks, counted);
    }
}

TEST_F(DoubleClicks, EveryFurtherPressGoesWithTheOneBefore) {
    Click(kOnButton, 10'000);
    for (int i = 1; i <= 5; ++i) Click(kOnButton, 10'000 + 400 * i);
    EXPECT_EQ(clicks, 0);
    Click(kOnButton, 13'000);
    EXPECT_EQ(clicks, 1);
}

}  // namespace

}  // namespace onze
