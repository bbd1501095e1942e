#include "forms/form.h"

#include <algorithm>

#include "forms/stage.h"

namespace onze {

Form::Form(Stage& stage) : stage_(stage) {}

Form::~Form() {
    stage_.Forget(*this);
}

void Form::Remove(Control& control) {
    stage_.Forget(control);
    std::erase(controls_, &control);
    if (back_ == &control) back_ = nullptr;
}

bool Form::visible() const {
    return stage_.IsShown(*this);
}

void Form::Show() {
    stage_.Show(*this);
}

void Form::Hide() {
    stage_.Hide(*this);
}

std::size_t Form::AreaAt(Point point) const {
    const auto found = std::find_if(areas_.begin(), areas_.end(),
                                    [point](const Rect& area) { return area.Contains(point); });
    return static_cast<std::size_t>(found - areas_.begin());
}

std::vector<Control*> Form::InReadingOrder() const {
    std::vector<Control*> ordered = controls_;
    std::stable_sort(ordered.begin(), ordered.end(), [this](const Control* a, const Control* b) {
        return AreaAt(a->HitBox().Middle()) < AreaAt(b->HitBox().Middle());
    });
    return ordered;
}

void Form::SetPicture(PicturePtr picture) {
    picture_ = std::move(picture);
    Damage({0, 0, kPageWidth, kPageHeight});
}

void Form::Damage(const Rect& box) const {
    if (stage_.front() == this) stage_.AddDamage(box);
}

void Form::Tell(const std::string& message) const {
    if (stage_.front() == this) stage_.Tell(message);
}

void Form::Paint(Canvas& canvas, const Rect& clip) const {
    // A picture may be smaller than the page, or let through what lies under it.
    canvas.FillBox({0, 0, kPageWidth, kPageHeight}, {255, 255, 255}, 0);
    if (picture_) canvas.DrawPicture(*picture_, {0, 0});
    for (const Control* control : controls_) {
        if (control->visible() && control->PaintedBox().Meets(clip)) control->Paint(canvas);
    }
}

Control* Form::ControlAt(Point point) const {
    const auto found = std::find_if(controls_.rbegin(), controls_.rend(), [point](const Control* control) {
        return control->TakesPointer() && control->HitBox().Contains(point);
    });
    return found == controls_.rend() ? nullptr : *found;
}

}  // namespace onze
