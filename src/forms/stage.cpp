#include "forms/stage.h"

#include <algorithm>
#include <cstdlib>

namespace onze {

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
    DamageAll();
    if (form.on_activate) form.on_activate();
}

void Stage::Hide(Form& form) {
    if (front() == &form) CancelPress();
    std::erase(shown_, &form);
    DamageAll();
}

void Stage::Forget(const Form& form) {
    std::erase(shown_, &form);
    focus_.Forget(form);
    if (gesture_page_ == &form) gesture_page_ = nullptr;
}

void Stage::Forget(const Control& control) {
    focus_.Forget(control);
    if (pressed_ != &control) return;
    pressed_ = nullptr;
    repeat_due_.reset();
}

void Stage::Move(Point point) {
    if (point != pointer_) focus_.YieldToPointer(nullptr);
    pointer_ = point;
    if (!front()) return;
    if (pressed_) return pressed_->MovePress(front()->ControlAt(point) == pressed_);
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
    focus_.YieldToPointer(pressed_);
    if (pressed_ && pressed_->BeginPress(point)) repeat_due_ = clock_.TickCount() + kFirstRepeatMs;
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

void Stage::Press(const KeyPress& press) {
    CancelPress();
    focus_.Press(press);
    focus_.Follow();
}

void Stage::Perform(Control& control, Use use, std::string_view text) {
    CancelPress();
    focus_.Perform(control, use, text);
    focus_.Follow();
}

void Stage::CancelPress() {
    if (pressed_) pressed_->EndPress();
    repeat_due_.reset();
    pressed_ = nullptr;
}

void Stage::Wheel(Point point, int notches) {
    if (!front()) return;
    for (Control* control : front()->controls()) {
        if (control->TurnWheel(point, notches)) return;
    }
}

Point Stage::NearestTarget(Point point, int least) const {
    if (!front() || ReactsToClickAt(point)) return point;
    Point nearest = point;
    std::optional<int> distance;
    for (const Control* control : front()->controls()) {
        const Rect box = control->HitBox();
        const int across = std::max(0, (least - box.width + 1) / 2);
        const int up = std::max(0, (least - box.height + 1) / 2);
        if (!control->TakesPointer() || !control->TakesClicks() || !box.Grown({across, up}).Contains(point))
            continue;
        const Point inside{std::clamp(point.x, box.left, box.right() - 1),
                           std::clamp(point.y, box.top, box.bottom() - 1)};
        const int away = std::max(std::abs(inside.x - point.x), std::abs(inside.y - point.y));
        if (front()->ControlAt(inside) != control || (distance && *distance <= away)) continue;
        nearest = inside;
        distance = away;
    }
    return nearest;
}

bool Stage::ReactsToClickAt(Point point) const {
    const Control* control = front() ? front()->ControlAt(point) : nullptr;
    return control && control->TakesClickAt(point);
}

std::optional<std::int64_t> Stage::NextDue() const {
    std::optional<std::int64_t> next = repeat_due_;
    for (const Timer* timer : timers_) {
        if (timer->due() && (!next || *timer->due() < *next)) next = timer->due();
    }
    return next;
}

void Stage::RunDue() {
    const std::int64_t now = clock_.TickCount();
    if (repeat_due_ && *repeat_due_ <= now) RepeatPress();
    for (Timer* timer : timers_) {
        if (timer->due() && *timer->due() <= now) timer->Run();
    }
}

void Stage::RepeatPress() {
    repeat_due_ = clock_.TickCount() + kRepeatMs;
    pressed_->RepeatPress(pointer_);
}

void Stage::Paint(Canvas& canvas, const Rect& clip) const {
    if (!front()) return;
    front()->Paint(canvas, clip);
    if (focus_.Ring().Meets(clip)) focus_.Paint(canvas);
}

Rect Stage::TakeDamage() {
    focus_.Follow();
    if (const Rect ring = focus_.Ring(); ring != ring_) {
        AddDamage(ring_.United(ring));
        ring_ = ring;
    }
    const Rect damage = damage_;
    damage_ = {};
    return damage;
}

}  // namespace onze
