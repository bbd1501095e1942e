#include "forms/up_down.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "forms/look.h"

namespace onze {

namespace {

// A text as it is compared: capital letters, numbers without blanks and zeros before them.
std::string Plain(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
    std::string plain(text.substr(begin));
    for (char& c : plain) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        if (c == '*') c = 'X';
    }
    while (plain.size() > 1 && plain.front() == '0') plain.erase(0, 1);
    return plain;
}

bool IsNumber(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

UpDown::UpDown(Form& form, const Rect& box, const Range& range, Label& answer)
    : Control(form, box, Role::kAnswer), answer_(answer), range_(range), value_(range.minimum) {
    answer.SetArrows(this);
}

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

void UpDown::Enter(int value) {
    if (value != value_) {
        SetValue(value);
    } else if (on_same) {
        on_same();
    }
}

void UpDown::EnterAhead(int steps) {
    const int room = (steps > 0 ? range_.maximum - value_ : value_ - range_.minimum) / increment_;
    Enter(value_ + std::clamp(steps, -room, room) * increment_);
}

bool UpDown::EnterText(std::string_view typed) {
    if (!text_of) return false;
    const std::string wanted = Plain(typed);
    const bool number = IsNumber(wanted);
    if (number != IsNumber(Plain(text_of(value_)))) return false;
    for (int value = range_.minimum; value <= range_.maximum; value += increment_) {
        const std::string text = Plain(text_of(value));
        if (number ? text != wanted : !text.starts_with(wanted)) continue;
        Enter(value);
        return true;
    }
    return number;
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
