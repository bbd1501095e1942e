#include "forms/control.h"

#include "forms/form.h"
#include "forms/stage.h"

namespace onze {

Control::Control(Form& form, const Rect& box, Role role) : form_(form), box_(box), role_(role) {
    form.Add(*this);
}

Control::~Control() {
    form_.Remove(*this);
}

TextMeasure& Control::text_measure() const {
    return form_.stage().text_measure();
}

void Control::Damage() const {
    form_.Damage(PaintedBox());
}

void Control::Tell(const std::string& message) const {
    form_.Tell(message);
}

void Control::SetBox(const Rect& box) {
    if (box == box_) return;
    if (visible_) Damage();
    box_ = box;
    if (visible_) Damage();
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Damage();
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    if (visible_) Damage();
}

void Image::SetPicture(PicturePtr picture) {
    picture_ = std::move(picture);
    Damage();
}

void Image::Paint(Canvas& canvas) const {
    if (picture_) canvas.DrawPicture(*picture_, {box().left, box().top});
}

namespace {

Rect BoxAround(Point from, Point to, int width) {
    const Rect one{from.x, from.y, 1, 1};
    return one.United({to.x, to.y, 1, 1}).Grown(width);
}

}  // namespace

Line::Line(Form& form, Point from, Point to, int width, Color color)
    : Control(form, BoxAround(from, to, width), Role::kDecoration),
      from_(from),
      to_(to),
      width_(width),
      color_(color) {}

void Line::Paint(Canvas& canvas) const {
    canvas.DrawLine(from_, to_, width_, color_);
}

}  // namespace onze
