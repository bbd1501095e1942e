#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/control.h"
#include "forms/text_layout.h"

namespace onze {

enum class Align { kLeft, kCenter, kRight };

// Whether a label's width follows its text, and which of its edges then stays where it is.
enum class AutoSize { kNone, kKeepLeft, kKeepRight };

struct LabelStyle {
    Role role = Role::kText;
    Font font{};
    Color color{};
    std::optional<Color> disabled_color{};  // while the label is disabled, where that shows
    std::optional<Color> ring{};            // around the text while the label is marked
    Align align = Align::kLeft;
    bool middle = false;          // the text stands at half height, else at the top
    std::optional<Color> fill{};  // transparent without
    std::optional<Color> foot{};  // makes the fill that of a key
    std::optional<Color> held{};  // the fill of a key that is held
    std::optional<Color> frame{};
    int radius = 0;
    Margins outset{};         // how far fill, frame and pointer zone pass the box
    Margins overhang{};       // how far the text alone may pass the box; below 0: how far it keeps inside
    int last_line_limit = 0;  // the widest that the last line may be where something stands beside it; 0: any
    AutoSize auto_size = AutoSize::kNone;
};

// A text in a box, wrapped; where it would not fit it is drawn smaller, never clipped. A centred text stands
// by what is seen of it: blanks at its ends do not count.
class Label final : public Control {
  public:
    Label(Form& form, const Rect& box, std::string caption, const LabelStyle& style);

    const std::string& caption() const { return caption_; }
    const LabelStyle& style() const { return style_; }
    void SetCaption(std::string caption);
    // A marked label keeps its colour while it is disabled, and has a ring where its style has one.
    bool marked() const { return marked_; }
    void SetMarked(bool marked);

    // Its text; what has no text can still have been given a name.
    const std::string& name() const override { return caption_.empty() ? Control::name() : caption_; }
    Rect HitBox() const override { return box().Grown(style_.outset); }
    Rect PaintedBox() const override { return HitBox().United(TextBox()); }
    bool TakesClicks() const override { return on_click && (!counts_click || counts_click()); }
    bool BeginPress(Point) override;
    void MovePress(bool over) override { SetHeld(over); }
    void EndPress() override { SetHeld(false); }
    void Paint(Canvas& canvas) const override;
    bool IsStop() const override;
    UpDown* arrows() const override { return arrows_; }
    void SetArrows(UpDown* arrows) { arrows_ = arrows; }
    // The text as it is painted.
    TextLayout Layout() const;

    // Whether a click would do something now; without, always.
    std::function<bool()> counts_click;

  private:
    void SetHeld(bool held);
    Rect TextBox() const;
    void FollowText();
    void PaintText(Canvas& canvas) const;

    std::string caption_;
    LabelStyle style_;
    UpDown* arrows_ = nullptr;
    bool marked_ = false;
    bool held_ = false;
    mutable std::optional<TextLayout> layout_;
    mutable Size layout_box_;
};

}  // namespace onze
