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
    UpDown(Form& form, const Rect& box, const Range& range, Label& answer);
    ~UpDown() override { answer_.SetArrows(nullptr); }

    int value() const { return value_; }
    int minimum() const { return range_.minimum; }
    int maximum() const { return range_.maximum; }
    int increment() const { return increment_; }
    // Values outside the range are brought to its nearest end.
    void SetValue(int value);
    void SetIncrement(int increment) { increment_ = increment; }

    // One step up (direction 1) or down (-1).
    void Step(int direction);
    // As many steps ahead as there are up to a limit, no more than these, as one change.
    void EnterAhead(int steps);
    // The value that a typed text stands for, or begins to stand for, where steps could reach it; tells
    // whether it was for this answer.
    bool EnterText(std::string_view typed);

    const std::string& name() const override { return answer_.name(); }
    bool TakesPointer() const override { return visible() && enabled(); }
    bool TakesClicks() const override { return true; }
    bool TakesClickAt(Point point) const override { return CanStep(HalfAt(point)); }
    bool BeginPress(Point point) override;
    void RepeatPress(Point pointer) override;
    void EndPress() override { SetHeldHalf(0); }
    bool TurnWheel(Point point, int notches) override;
    void Paint(Canvas& canvas) const override;

    bool IsStop() const override { return false; }
    using Control::Stop;
    const Control* Stop() const override { return &answer_; }
    const Label& answer() const { return answer_; }

    std::function<void()> on_change;
    // A value was entered that stood there before.
    std::function<void()> on_same;
    // How a value reads.
    std::function<std::string(int value)> text_of;

  private:
    // The half under a point: 1 (upper) or -1 (lower).
    int HalfAt(Point point) const { return point.y < box().top + box().height / 2 ? 1 : -1; }
    bool CanStep(int direction) const;
    void SetHeldHalf(int direction);
    void PaintHalf(Canvas& canvas, int direction) const;

    void Enter(int value);

    Label& answer_;
    Range range_;
    int value_;
    int increment_ = 1;
    int held_half_ = 0;  // 1 or -1 while it is held
};

}  // namespace onze
