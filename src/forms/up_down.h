#pragma once

#include "forms/control.h"

class Label;

// A pair of arrows around a whole number: the upper half raises it by the increment, the lower half lowers
// it. A step that would pass a limit is refused. on_change runs when, and only when, the value really
// changes, whoever changes it.
class UpDown final : public Control {
  public:
    struct Range {
        int minimum;
        int maximum;
    };

    // The answer is the label that the wheel steps, beside the arrows themselves.
    UpDown(Form& form, const Rect& box, const Range& range, const Label& answer);

    int value() const { return value_; }
    int minimum() const { return range_.minimum; }
    // Values outside the range are brought to its nearest end.
    void SetValue(int value);
    void SetIncrement(int increment) { increment_ = increment; }

    // One press on a half: direction 1 (up) or -1 (down).
    void Step(int direction);
    // The half under a point: 1 (up) or -1 (down).
    int HalfAt(Point point) const { return point.y < box().top + box().height / 2 ? 1 : -1; }
    // The half that is held down, 0 for none; only looks depend on it.
    void SetHeldHalf(int direction);

    bool Reacts() const override { return visible() && enabled(); }
    // Whether the wheel turned at this point steps the arrows.
    bool TakesWheelAt(Point point) const;
    void Paint(Canvas& canvas) const override;

    std::function<void()> on_change;

  private:
    void PaintHalf(Canvas& canvas, int direction) const;

    const Label& answer_;
    Range range_;
    int value_;
    int increment_ = 1;
    int held_half_ = 0;
};
