#include "forms/label.h"

#include <gtest/gtest.h>

#include "forms/stage.h"
#include "support/headless_platform.h"

namespace {

// A canvas that keeps where each line of text was painted, and in what size.
struct PaintedLine {
    Point at;
    std::string text;
    int height;

    friend bool operator==(const PaintedLine&, const PaintedLine&) = default;
};

class PlaceCanvas final : public BlankCanvas {
  public:
    void DrawTextLine(Point at, std::string_view line, const Font& font, Color) override {
        lines.push_back({at, std::string(line), font.height});
    }

    std::vector<PaintedLine> lines;
};

// In the tests a letter is half as wide as the font is high, and a line 6/5 as high.
class LabelTest : public testing::Test {
  protected:
    std::vector<PaintedLine> Painted(const Rect& box, const std::string& text, const LabelStyle& style) {
        const Label label(form, box, text, style);
        PlaceCanvas canvas;
        label.Paint(canvas);
        return canvas.lines;
    }

    HeadlessPlatform platform;
    Stage stage{platform};
    Form form{stage};
};

TEST_F(LabelTest, WrapsAtBlanksAndBreaksAtCarriageReturns) {
    const LabelStyle style{.font = {100}};
    const auto lines = Painted({0, 0, 500, 600}, " un deux trois\r\rquatre", style);
    EXPECT_EQ(lines, (std::vector<PaintedLine>{{{0, 0}, " un deux", 100},
                                               {{0, 120}, "trois", 100},
                                               {{0, 240}, "", 100},
                                               {{0, 360}, "quatre", 100}}));
    const auto exact = Painted({0, 0, 350, 120}, "un deux", style);
    EXPECT_EQ(exact, (std::vector<PaintedLine>{{{0, 0}, "un deux", 100}}));
}

TEST_F(LabelTest, MarksAndProductsStayTogether) {
    const auto lines = Painted({0, 0, 500, 600}, "multiple 7 ? non !", {.font = {100}});
    EXPECT_EQ(lines, (std::vector<PaintedLine>{{{0, 0}, "multiple", 100}, {{0, 120}, "7 ? non !", 100}}));
    EXPECT_EQ(Painted({0, 0, 450, 600}, "un deux ? !", {.font = {100}}).at(1).text, "deux ? !");
    EXPECT_EQ(Painted({0, 0, 450, 600}, "28 = 4 X 7 = 28", {.font = {100}}).at(1).text, "4 X 7 =");
}

TEST_F(LabelTest, AlignsInItsBox) {
    const Rect box{1000, 1000, 1000, 500};
    EXPECT_EQ(Painted(box, "ab", {.font = {100}, .align = Align::kCenter, .middle = true}).at(0).at,
              (Point{1450, 1190}));
    EXPECT_EQ(Painted(box, "ab", {.font = {100}, .align = Align::kRight}).at(0).at, (Point{1900, 1000}));
}

TEST_F(LabelTest, TextThatDoesNotFitIsDrawnSmaller) {
    const auto one_word = Painted({0, 0, 400, 1000}, "ABCDEFGHIJ", {.font = {100}});
    EXPECT_EQ(one_word, (std::vector<PaintedLine>{{{0, 0}, "ABCDEFGHIJ", 80}}));
    const auto too_many_lines = Painted({0, 0, 1000, 230}, "a\rb", {.font = {100}});
    EXPECT_EQ(too_many_lines.at(1), (PaintedLine{{0, 114}, "b", 95}));
    const auto hopeless = Painted({0, 0, 10, 10}, "a", {.font = {100}});
    EXPECT_EQ(hopeless.at(0).height, 80);  // never below four points
}

TEST_F(LabelTest, OverhangLeavesTheBoxButNotItsReach) {
    const LabelStyle style{.font = {100}, .align = Align::kCenter, .overhang = {200, 60, 200, 0}};
    Label label(form, {1000, 0, 400, 120}, "ABCDEFGHIJKLMNOP", style);
    PlaceCanvas canvas;
    label.Paint(canvas);
    EXPECT_EQ(canvas.lines, (std::vector<PaintedLine>{{{800, -60}, "ABCDEFGHIJKLMNOP", 100}}));
    EXPECT_EQ(label.Reach(), (Rect{1000, 0, 400, 120}));
    EXPECT_EQ(label.Painted(), (Rect{800, -60, 800, 180}));
}

TEST_F(LabelTest, AutoSizeFollowsTheTextAndKeepsAnEdge) {
    Label left(form, {1000, 0, 50, 120}, "??", {.font = {100}, .auto_size = AutoSize::kKeepLeft});
    Label right(form, {1000, 0, 50, 120}, "", {.font = {100}, .auto_size = AutoSize::kKeepRight});
    EXPECT_EQ(left.box(), (Rect{1000, 0, 100, 120}));
    left.SetCaption(" 12 =");
    right.SetCaption(" 12 =");
    EXPECT_EQ(left.box(), (Rect{1000, 0, 250, 120}));
    EXPECT_EQ(right.box(), (Rect{800, 0, 250, 120}));
}

}  // namespace
