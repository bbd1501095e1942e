#include "support/monkey.h"

#include <algorithm>

void Monkey::Act(Stage& stage) {
    const int aim = random_.Draw(10);  // else it stays where it is
    if (aim < 2) at_ = Anywhere();
    if (aim > 3) at_ = OnSomething(stage);
    stage.Move(at_);
    switch (random_.Draw(8)) {
        case 0:
            return wait_(stage, random_.Draw(400));
        case 1:
            return stage.Wheel(at_, random_.Draw(7) - 3);
        case 2:
            return Hold(stage);
        case 3:
            return;
        default:
            stage.Press(at_), stage.Release(at_);
    }
}

Point Monkey::Anywhere() {
    return {random_.Draw(kPageWidth + 20_px) - 10_px, random_.Draw(kPageHeight + 20_px) - 10_px};
}

Point Monkey::OnSomething(const Stage& stage) {
    std::vector<const Control*> choices;
    std::copy_if(stage.front()->controls().begin(), stage.front()->controls().end(),
                 std::back_inserter(choices), [](const Control* control) { return control->Reacts(); });
    if (choices.empty()) return at_;
    const Rect& box =
        choices.at(static_cast<std::size_t>(random_.Draw(static_cast<int>(choices.size()))))->box();
    return {box.left + random_.Draw(box.width), box.top + random_.Draw(box.height)};
}

void Monkey::Hold(Stage& stage) {
    stage.Press(at_);
    wait_(stage, random_.Draw(1500));
    if (random_.Draw(2) == 0) at_ = OnSomething(stage);
    stage.Move(at_);
    wait_(stage, random_.Draw(300));
    if (random_.Draw(4) > 0) stage.Release(at_);  // a button let go outside the window is never told
}
