#include "forms/focus.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

#include "forms/look.h"
#include "forms/stage.h"
#include "forms/up_down.h"

namespace onze {

namespace {

constexpr std::int64_t kTypingMs = 1000;
constexpr int kPageOfSteps = 10;
constexpr int kAllSteps = std::numeric_limits<int>::max();

// The place of a control among others; their number where it is none of them.
std::ptrdiff_t PlaceIn(const std::vector<Control*>& controls, const Control* control) {
    return std::find(controls.begin(), controls.end(), control) - controls.begin();
}

bool Holds(const std::vector<Control*>& stops, const Control* control) {
    return PlaceIn(stops, control) < std::ssize(stops);
}

bool IsHeader(const Control& control) {
    return control.role() == Role::kRowHeader || control.role() == Role::kColumnHeader;
}

bool AreAlike(const Control& one, const Control& other) {
    return one.role() == other.role() || (IsHeader(one) && IsHeader(other));
}

}  // namespace

Focus::Stops Focus::StopsOfPage() const {
    if (!stage_.front()) return {};
    Stops stops = stage_.front()->InReadingOrder();
    std::erase_if(stops, [](const Control* control) { return !control->IsStop(); });
    return stops;
}

// What is only disabled is waited for, unless there is another of its kind to use now.
Control* Focus::HeirOf(Control& lost, const Stops& stops) const {
    const Form& page = *stage_.front();
    const std::size_t area = page.AreaAt(lost.HitBox().Middle());
    const bool disabled = lost.visible() && !lost.enabled();
    Control* first = nullptr;
    for (Control* stop : stops) {
        if (page.AreaAt(stop->HitBox().Middle()) != area) continue;
        if (disabled && !AreAlike(*stop, lost)) continue;
        if (!first) first = stop;
        if (PlaceIn(page.controls(), stop) > PlaceIn(page.controls(), &lost)) return stop;
    }
    if (first || disabled) return first ? first : &lost;
    return stops.empty() ? nullptr : stops.back();
}

// A page that leads back is begun anew each time; on the first one the focus stays where it was.
void Focus::BeginPage() {
    page_ = stage_.front();
    if (page_ && page_->back()) wanted_.erase(page_);
}

void Focus::Follow() {
    const Control* const before = at_;
    at_ = nullptr;
    if (stage_.front() != page_) BeginPage();
    if (!shown_ || !stage_.front()) return;
    const Stops stops = StopsOfPage();
    Control*& wanted = wanted_[stage_.front()];
    if (!wanted && !stops.empty()) wanted = stops.front();
    if (wanted) at_ = Holds(stops, wanted) ? wanted : HeirOf(*wanted, stops);
    if (at_ == before) return;
    typed_.clear();
    Hover();
}

// A page that tells what lies under the pointer tells it of what has the focus, as if the pointer had come
// there over the page.
void Focus::Hover() const {
    if (stage_.front()->on_move) stage_.front()->on_move();
    if (at_ && at_->on_move) at_->on_move();
}

void Focus::MoveTo(Control* control) {
    if (control) wanted_[stage_.front()] = control;
}

void Focus::MoveBy(int by) {
    const Stops stops = StopsOfPage();
    if (stops.empty()) return;
    const auto count = static_cast<int>(stops.size());
    const auto found = static_cast<int>(PlaceIn(stops, at_));
    const int from = found < count ? found : by > 0 ? -1 : 0;
    MoveTo(stops[static_cast<std::size_t>((from + by + count) % count)]);
}

// The nearest one that lies more along the key's direction than across it, or is next to this one in a row of
// its kind, which may be bent.
Control* Focus::Neighbour(Key direction) const {
    const bool upright = direction == Key::kUp || direction == Key::kDown;
    const int sign = direction == Key::kUp || direction == Key::kLeft ? -1 : 1;
    const Stops stops = StopsOfPage();
    const std::ptrdiff_t here = PlaceIn(stops, at_);
    Control* nearest = nullptr;
    int least = 0;
    for (std::ptrdiff_t i = 0; i < std::ssize(stops); ++i) {
        Control* const stop = stops[static_cast<std::size_t>(i)];
        const int right = stop->HitBox().Middle().x - at_->HitBox().Middle().x;
        const int down = stop->HitBox().Middle().y - at_->HitBox().Middle().y;
        const int along = sign * (upright ? down : right);
        const int across = std::abs(upright ? right : down);
        const bool in_row = std::abs(i - here) == 1 && AreAlike(*stop, *at_);
        if (along <= 0 || (across > along && !in_row)) continue;
        if (nearest && along + across >= least) continue;
        nearest = stop;
        least = along + across;
    }
    return nearest;
}

void Focus::YieldToPointer(Control* control) {
    shown_ = false;
    if (control) wanted_[stage_.front()] = control->Stop();
}

void Focus::Press(const KeyPress& press) {
    if (!stage_.front()) return;
    const bool seen = shown_;
    shown_ = true;
    if (!seen && press.key == Key::kTab && !wanted_[stage_.front()]) return Follow();
    Follow();
    UpDown* const arrows = at_ ? at_->arrows() : nullptr;
    switch (press.key) {
        case Key::kTab:
            return MoveBy(1);
        case Key::kBackTab:
            return MoveBy(-1);
        case Key::kEscape:
            if (!press.repeated) Escape();
            return;
        case Key::kClick:
            // What nobody saw to have the focus is not clicked.
            if (seen && at_ && at_->IsStop() && !press.repeated) Click(*at_);
            return;
        case Key::kLeft:
        case Key::kRight:
            if (at_) MoveTo(Neighbour(press.key));
            return;
        default:
            if (arrows) {
                Enter(press, *arrows);
            } else if (at_ && (press.key == Key::kUp || press.key == Key::kDown)) {
                MoveTo(Neighbour(press.key));
            }
    }
}

void Focus::Perform(Control& control, Use use, std::string_view text) {
    if (!Holds(StopsOfPage(), &control)) return;
    shown_ = true;
    MoveTo(&control);
    UpDown* const arrows = control.arrows();
    if (use == Use::kClick) Click(control);
    if (use == Use::kRaise && arrows) arrows->Step(1);
    if (use == Use::kLower && arrows) arrows->Step(-1);
    if (use == Use::kEnter && arrows) arrows->EnterText(text);
}

void Focus::Click(Control& control) {
    MoveTo(&control);
    if (control.on_click) control.on_click();
}

// Goes back; on the page that leads to no other, to the way out.
void Focus::Escape() {
    Form& page = *stage_.front();
    if (page.back()) return Click(*page.back());
    const Stops stops = StopsOfPage();
    if (!stops.empty()) MoveTo(stops.back());
}

void Focus::Enter(const KeyPress& press, UpDown& arrows) {
    MoveTo(at_);
    switch (press.key) {
        case Key::kUp:
            return arrows.Step(1);
        case Key::kDown:
            return arrows.Step(-1);
        case Key::kPageUp:
            return arrows.EnterAhead(kPageOfSteps);
        case Key::kPageDown:
            return arrows.EnterAhead(-kPageOfSteps);
        case Key::kHome:
            return arrows.EnterAhead(-kAllSteps);
        case Key::kEnd:
            return arrows.EnterAhead(kAllSteps);
        default:
            return Type(press, arrows);
    }
}

// A layout may write another character with a digit's key: then the digit counts where that character does
// not.
void Focus::Type(const KeyPress& press, UpDown& arrows) {
    const std::int64_t now = stage_.clock().TickCount();
    if (now - typed_at_ > kTypingMs) typed_.clear();
    for (const char character : {press.character, press.digit}) {
        if (character == 0 || !arrows.EnterText(typed_ + character)) continue;
        typed_ += character;
        typed_at_ = now;
        return;
    }
}

Rect Focus::Ring() const {
    if (!shown()) return {};
    const UpDown* const arrows = at_->arrows();
    const Rect box = arrows && arrows->visible() ? at_->HitBox().United(arrows->box()) : at_->HitBox();
    return box.Grown(kFocusRing);
}

// Dark within light, or light within dark, on whatever ground.
void Focus::Paint(Canvas& canvas) const {
    const Rect ring = Ring();
    if (ring.empty()) return;
    constexpr std::array<Color, 4> kLines{kFocusLight, kFocusDark, kFocusDark, kFocusLight};
    int inside = 0;
    for (const Color color : kLines) {
        canvas.FrameBox(ring.Grown(-inside), color, kFocusRadius - inside);
        inside += 1_px;
    }
}

void Focus::Forget(const Form& form) {
    wanted_.erase(&form);
    if (page_ == &form) page_ = nullptr;
}

void Focus::Forget(const Control& control) {
    std::erase_if(wanted_, [&control](const auto& page) { return page.second == &control; });
    if (at_ == &control) at_ = nullptr;
}

}  // namespace onze
