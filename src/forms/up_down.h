#pragma once

#include "forms/label.h"

namespace onze {

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

    // One step up (direction 1) or down (-1).
    void Step(int direction);

    const std::string& name() const override { return answer_.name(); }
    bool TakesPointer() const override { return visible() && enabled(); }
    bool TakesClicks() const override { return true; }
    bool TakesClickAt(Point point) const override { return CanStep(HalfAt(point)); }
    bool BeginPress(Point point) override;
    void RepeatPress(Point pointer) override;
    void EndPress() override { SetHeldHalf(0); }
    bool TurnWheel(Point point, int notches) override;
    void Paint(Canvas& canvas) const override;

    std::function<void()> on_change;

  private:
    // The half under a point: 1 (upper) or -1 (lower).
    int HalfAt(Point point) const { return point.y < box().top + box().height / 2 ? 1 : -1; }
    bool CanStep(int direction) const;
    void SetHeldHalf(int direction);
    void PaintHalf(Canvas& canvas, int direction) const;

    const Label& answer_;
    Range range_;
    int value_;
    int increment_ = 1;
    int held_half_ = 0;  // 1 or -1 while it is held
};

}  // namespace onze
