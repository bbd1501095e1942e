#include "forms/up_down.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "forms/look.h"

namespace onze {

UpDown::UpDown(Form& form, const Rect& box, const Range& range, const Label& answer)
    : Control(form, box, Role::kAnswer), answer_(answer), range_(range), value_(range.minimum) {}

void UpDown::SetValue(int value) {
    const int bounded = std::clamp(value, range_.minimum, range_.maximum);
    if (bounded == value_) return;
    value_ = bounded;
    if (on_change) on_change();
}

void UpDown::Step(int direction) {
    if (CanStep(direction)) SetValue(value_ + direction * increment_);
}

bool UpDown::CanStep(int direction) const {
    const int next = value_ + direction * increment_;
    return next >= range_.minimum && next <= range_.maximum;
}

void UpDown::SetHeldHalf(int direction) {
    if (direction == held_half_) return;
    held_half_ = direction;
    Damage();
}

bool UpDown::BeginPress(Point point) {
    SetHeldHalf(HalfAt(point));
    Step(held_half_);
    return true;
}

void UpDown::RepeatPress(Point pointer) {
    if (TakesPointer() && box().Contains(pointer) && HalfAt(pointer) == held_half_) Step(held_half_);
}

bool UpDown::TurnWheel(Point point, int notches) {
    const bool over_answer = answer_.visible() && answer_.HitBox().Contains(point);
    if (!TakesPointer() || !(box().Contains(point) || over_answer)) return false;
    for (int i = 0; i < std::abs(notches); ++i) Step(notches > 0 ? 1 : -1);
    return true;
}

void UpDown::Paint(Canvas& canvas) const {
    PaintHalf(canvas, 1);
    PaintHalf(canvas, -1);
}

void UpDown::PaintHalf(Canvas& canvas, int direction) const {
    const int height = box().height / 2;
    const Rect half{box().left, direction > 0 ? box().top : box().top + height, box().width, height};
    if (held_half_ == direction) {
        canvas.FillBox(half, kHeldFill, kArrowRadius);
    } else {
        FillKey(canvas, half, kArrowFill, kKeyFoot, kArrowRadius);
    }
    canvas.FrameBox(half, kArrowFrame, kArrowRadius);
    const Point middle{half.left + half.width / 2, half.top + half.height / 2 - 1_px};
    const int reach = std::min(half.width, half.height) / 4;
    const std::array<Point, 3> triangle{Point{middle.x - 3 * reach / 2, middle.y + direction * reach},
                                        Point{middle.x + 3 * reach / 2, middle.y + direction * reach},
                                        Point{middle.x, middle.y - direction * reach}};
    canvas.FillPolygon(triangle, kArrowMark);
}

}  // namespace onze
