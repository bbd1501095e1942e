#include "forms/label.h"

#include <gtest/gtest.h>

#include "forms/stage.h"
#include "support/writing_canvas.h"

namespace onze {

namespace {

// In the tests a letter is half as wide as the font is high, and a line 6/5 as high.
class LabelTest : public testing::Test {
  protected:
    static std::string Painted(const Label& label) {
        WritingCanvas canvas;
        label.Paint(canvas);
        return canvas.out.str();
    }
    // Of a label of this font, 100 twips high.
    std::string Painted(const Rect& box, const std::string& text, LabelStyle style = {}) {
        style.font.height = 100;
        return Painted(Label(form, box, text, style));
    }
    static std::string Line(const std::string& place, const std::string& text, int height = 100) {
        return "text " + place + " high " + std::to_string(height) + " in 0,0,0 |" + text + "|\n";
    }

    HeadlessHost host;
    Stage stage{host, host};
    Form form{stage};
};

TEST_F(LabelTest, WrapsAtBlanksAndBreaksAtCarriageReturns) {
    EXPECT_EQ(Painted({0, 0, 500, 600}, " un deux trois\r\rquatre"),
              Line("0,0", " un deux") + Line("0,120", "trois") + Line("0,240", "") + Line("0,360", "quatre"));
    EXPECT_EQ(Painted({0, 0, 350, 120}, "un deux"), Line("0,0", "un deux"));
}

TEST_F(LabelTest, MarksAndProductsStayTogether) {
    EXPECT_EQ(Painted({0, 0, 500, 600}, "multiple 7 ? non !"),
              Line("0,0", "multiple") + Line("0,120", "7 ? non !"));
    EXPECT_EQ(Painted({0, 0, 450, 600}, "un deux ? !"), Line("0,0", "un") + Line("0,120", "deux ? !"));
    EXPECT_EQ(Painted({0, 0, 450, 600}, "28 = 4 X 7 = 28"),
              Line("0,0", "28 =") + Line("0,120", "4 X 7 =") + Line("0,240", "28"));
    EXPECT_EQ(Painted({0, 0, 1000, 600}, "Exemple : 1 + 1 = 2 X 1 - 0"),
              Line("0,0", "Exemple :") + Line("0,120", "1 + 1 = 2 X 1 - 0"));
    EXPECT_EQ(Painted({0, 0, 550, 600}, "vrai car 56 : 8 = 7"),
              Line("0,0", "vrai car") + Line("0,120", "56 : 8 = 7"));
}

TEST_F(LabelTest, TextThatDoesNotFitIsDrawnSmaller) {
    EXPECT_EQ(Painted({0, 0, 400, 1000}, "ABCDEFGHIJ"), Line("0,0", "ABCDEFGHIJ", 80));
    EXPECT_EQ(Painted({0, 0, 1000, 230}, "a\rb"), Line("0,0", "a", 95) + Line("0,114", "b", 95));
    EXPECT_EQ(Painted({0, 0, 10, 10}, "a"), Line("0,0", "a", 80)) << "below four points";
}

TEST_F(LabelTest, OverhangLeavesTheBoxButNotItsReach) {
    const Label label(form, {1000, 0, 400, 120}, "ABCDEFGHIJKLMNOP",
                      {.font = {100}, .align = Align::kCenter, .overhang = {200, 60, 200, 0}});
    EXPECT_EQ(Painted(label), Line("800,-60", "ABCDEFGHIJKLMNOP"));
    EXPECT_EQ(label.HitBox(), (Rect{1000, 0, 400, 120}));
    EXPECT_EQ(label.PaintedBox(), (Rect{800, -60, 800, 180}));
}

}  // namespace

}  // namespace onze
