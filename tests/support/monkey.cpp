#include "support/monkey.h"

#include <algorithm>

namespace onze {

namespace {

class BlankPaper final : public Canvas {
  public:
    void DrawPicture(const Picture&, Point) override {}
    void FillBox(const Rect&, Color, int) override {}
    void FrameBox(const Rect&, Color, int) override {}
    void FillPolygon(std::span<const Point>, Color) override {}
    void DrawLine(Point, Point, int, Color) override {}
    void DrawTextLine(Point, std::string_view, const Font&, Color) override {}
};

}  // namespace

void Monkey::Act(Program& program) {
    if (random_.Draw(3) == 0) return Press(program);
    const int aim = random_.Draw(10);  // else it stays where it is
    if (aim < 2) at_ = Anywhere();
    if (aim > 3) at_ = OnSomething(program);
    program.Take(event::PointerMoved{at_});
    switch (random_.Draw(8)) {
        case 0:
            return wait_(random_.Draw(400));
        case 1:
            program.Take(event::WheelTurned{at_, 40 * (random_.Draw(19) - 9)});
            return;
        case 2:
            return Hold(program);
        case 3:
            return;
        default:
            program.Take(event::PointerPressed{.at = at_});
            program.Take(event::PointerReleased{at_});
    }
}

void Monkey::Press(Program& program) {
    static constexpr std::string_view kCharacters = "0123456789 ADERSTXZadx+-*&!~";
    const int key = random_.Draw(static_cast<int>(Key::kCharacter) + 8);
    KeyPress press{.key = static_cast<Key>(std::min(key, static_cast<int>(Key::kCharacter)))};
    if (press.key == Key::kCharacter) {
        press.character = kCharacters[static_cast<std::size_t>(random_.Draw(28))];
        if (random_.Draw(4) == 0) press.digit = static_cast<char>('0' + random_.Draw(10));
    }
    press.repeated = random_.Draw(8) == 0;
    if (!program.Take(event::KeyPressed{press}).print) return;
    BlankPaper paper;
    program.PaintOnPaper(paper);
}

Pixel Monkey::Anywhere() {
    return {random_.Draw(640 + 20) - 10, random_.Draw(480 + 20) - 10};
}

Pixel Monkey::OnSomething(Program& program) {
    std::vector<const Control*> choices;
    const auto& controls = program.stage().front()->controls();
    std::copy_if(controls.begin(), controls.end(), std::back_inserter(choices),
                 [](const Control* control) { return control->TakesPointer(); });
    if (choices.empty()) return at_;
    const Rect& box =
        choices.at(static_cast<std::size_t>(random_.Draw(static_cast<int>(choices.size()))))->box();
    return program.view().ToPixels(
        Point{box.left + random_.Draw(box.width), box.top + random_.Draw(box.height)});
}

void Monkey::Hold(Program& program) {
    program.Take(event::PointerPressed{.at = at_});
    wait_(random_.Draw(1500));
    if (random_.Draw(2) == 0) at_ = OnSomething(program);
    program.Take(event::PointerMoved{at_});
    wait_(random_.Draw(300));
    switch (random_.Draw(4)) {
        case 0:
            return;  // a button let go outside the window is never told
        case 1:
            program.Take(event::PointerLost());
            return;
        default:
            program.Take(event::PointerReleased{at_});
    }
}

}  // namespace onze
