#include "forms/stage.h"

#include <algorithm>
#include <cstdlib>

#include "forms/platform.h"
#include "forms/up_down.h"

namespace {

constexpr std::int64_t kFirstRepeatMs = 500;
constexpr std::int64_t kRepeatMs = 50;

}  // namespace

bool Stage::IsShown(const Form& form) const {
    return std::find(shown_.begin(), shown_.end(), &form) != shown_.end();
}

void Stage::Show(Form& form) {
    Hide(form);
    shown_.push_back(&form);
    AddDamage({0, 0, kPageWidth, kPageHeight});
    if (form.on_activate) form.on_activate();
}

void Stage::Hide(Form& form) {
    if (front() == &form) CancelPress();
    std::erase(shown_, &form);
    AddDamage({0, 0, kPageWidth, kPageHeight});
}

void Stage::Move(Point point) {
    pointer_ = point;
    if (pressed_ || held_ || !front()) return;
    const Control* control = front()->ControlAt(point);
    const auto& handler = control && control->on_move ? control->on_move : front()->on_move;
    if (handler) handler();
}

bool Stage::ContinuesGesture(Point point, const DoubleClick& rule) const {
    const std::int64_t pause = rule.pressed_at - last_pressed_at_;
    return gesture_page_ && pause >= 0 && pause <= rule.time &&
           std::abs(point.x - last_press_.x) <= rule.distance &&
           std::abs(point.y - last_press_.y) <= rule.distance;
}

void Stage::Press(Point point, const DoubleClick& rule) {
    pointer_ = point;
    CancelPress();
    if (!ContinuesGesture(point, rule)) gesture_page_ = front();
    last_press_ = point;
    last_pressed_at_ = rule.pressed_at;
    if (!front() || front() != gesture_page_) return;
    pressed_ = front()->ControlAt(point);
    held_ = dynamic_cast<UpDown*>(pressed_);
    if (!held_) return;
    held_half_ = held_->HalfAt(point);
    held_due_ = platform_.TickCount() + kFirstRepeatMs;
    held_->SetHeldHalf(held_half_);
    held_->Step(held_half_);
}

void Stage::Release(Point point) {
    pointer_ = point;
    Control* const pressed = pressed_;
    CancelPress();
    if (!pressed || !front() || front()->ControlAt(point) != pressed) return;
    const Form* const page = front();
    if (pressed->on_click) pressed->on_click();
    if (front() != page) Move(point);  // which the page shown now has not been told
}

void Stage::CancelPress() {
    if (held_) held_->SetHeldHalf(0);
    pressed_ = nullptr;
    held_ = nullptr;
}

void Stage::Wheel(Point point, int notches) {
    if (!front()) return;
    for (Control* control : front()->controls()) {
        auto* const arrows = dynamic_cast<UpDown*>(control);
        if (!arrows || !arrows->TakesWheelAt(point)) continue;
        for (int i = 0; i < std::abs(notches); ++i) arrows->Step(notches > 0 ? 1 : -1);
        return;
    }
}

bool Stage::ReactsToClickAt(Point point) const {
    const Control* control = front() ? front()->ControlAt(point) : nullptr;
    return control && (control->on_click || dynamic_cast<const UpDown*>(control));
}

std::optional<std::int64_t> Stage::NextDue() const {
    std::optional<std::int64_t> next;
    if (held_) next = held_due_;
    for (const Timer* timer : timers_) {
        if (timer->due() && (!next || *timer->due() < *next)) next = timer->due();
    }
    return next;
}

void Stage::RunDue() {
    const std::int64_t now = platform_.TickCount();
    if (held_ && held_due_ <= now) RepeatHeld();
    for (Timer* timer : timers_) {
        if (timer->due() && *timer->due() <= now) timer->Run();
    }
}

void Stage::RepeatHeld() {
    held_due_ = platform_.TickCount() + kRepeatMs;
    const bool under_pointer = held_->Reacts() && held_->box().Contains(pointer_);
    if (under_pointer && held_->HalfAt(pointer_) == held_half_) held_->Step(held_half_);
}

void Stage::Paint(Canvas& canvas, const Rect& clip) const {
    if (front()) front()->Paint(canvas, clip);
}

Rect Stage::TakeDamage() {
    const Rect damage = damage_;
    damage_ = {};
    return damage;
}
