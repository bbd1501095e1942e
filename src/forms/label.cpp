#include "forms/label.h"

#include <algorithm>

#include "forms/up_down.h"

namespace onze {

namespace {

constexpr int kSunk = 1_px;  // how far the text of a held key goes down
constexpr int kRingRadius = 7_px;

std::string_view Trimmed(std::string_view text) {
    const auto first = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}  // namespace

Label::Label(Form& form, const Rect& box, std::string caption, const LabelStyle& style)
    : Control(form, box, style.role), caption_(std::move(caption)), style_(style) {
    FollowText();
}

void Label::SetCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    layout_.reset();
    FollowText();
    if (!visible()) return;
    Damage();
    if (role() == Role::kMessage) Tell(caption_);
}

void Label::SetMarked(bool marked) {
    if (marked == marked_) return;
    marked_ = marked;
    if (visible()) Damage();
}

bool Label::BeginPress(Point) {
    SetHeld(true);
    return false;
}

void Label::SetHeld(bool held) {
    if (held == held_ || !style_.held) return;
    held_ = held;
    if (visible()) Damage();
}

void Label::FollowText() {
    if (style_.auto_size == AutoSize::kNone) return;
    const int width = LayOutUnwrapped(text_measure(), caption_, style_.font).Width();
    const bool keep_right = style_.auto_size == AutoSize::kKeepRight;
    SetBox({keep_right ? box().right() - width : box().left, box().top, width, box().height});
}

Rect Label::TextBox() const {
    return box().Grown(style_.overhang);
}

TextLayout Label::Layout() const {
    const Size size{TextBox().width, TextBox().height};
    if (!layout_ || layout_box_ != size) {
        const std::string_view text = style_.align == Align::kCenter ? Trimmed(caption_) : caption_;
        layout_ = LayOutInBox(text_measure(), text, style_.font, size, style_.last_line_limit);
        layout_box_ = size;
    }
    return *layout_;
}

// An answer without its arrows is closed.
bool Label::IsStop() const {
    return arrows_ ? visible() && enabled() && arrows_->TakesPointer() : Control::IsStop();
}

void Label::Paint(Canvas& canvas) const {
    if (held_) {
        canvas.FillBox(HitBox(), *style_.held, style_.radius);
    } else if (style_.fill) {
        FillKey(canvas, HitBox(), *style_.fill, style_.foot.value_or(*style_.fill), style_.radius);
    }
    if (style_.frame) canvas.FrameBox(HitBox(), *style_.frame, style_.radius);
    if (style_.ring && marked_) canvas.FrameBox(TextBox(), *style_.ring, kRingRadius);
    if (!caption_.empty()) PaintText(canvas);
}

void Label::PaintText(Canvas& canvas) const {
    const TextLayout layout = Layout();
    const Rect place = TextBox();
    const bool grey = style_.disabled_color && !enabled() && !marked_;
    const Color color = grey ? *style_.disabled_color : style_.color;
    int top = place.top + (held_ ? kSunk : 0);
    if (style_.middle) top += (place.height - layout.Height()) / 2;
    for (const TextLine& line : layout.lines) {
        int left = place.left;
        if (style_.align == Align::kCenter) left += (place.width - line.width) / 2;
        if (style_.align == Align::kRight) left += place.width - line.width;
        canvas.DrawTextLine({left, top}, line.text, layout.font, color);
        top += layout.line_height;
    }
}

}  // namespace onze
