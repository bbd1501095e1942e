#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/clock.h"
#include "forms/focus.h"
#include "forms/form.h"
#include "forms/text_measure.h"

namespace onze {

// When a press came, and within how much of time and of distance the system takes it for one gesture with the
// press before it: a double click, or more.
struct DoubleClick {
    std::int64_t pressed_at = 0;  // milliseconds of the clock that the system's events have
    std::int64_t time = -1;       // milliseconds; below 0: it is a gesture by itself
    int distance = 0;             // twips of the page
};

// The one window's content: the screens that are shown, the pointer's way into them, and their timers. A
// presenter passes events in, paints what was damaged, and sleeps until the next event or the next due time.
// Any call may throw RunTimeError; the run is then over.
class Stage {
  public:
    Stage(const Clock& clock, TextMeasure& text_measure) : clock_(clock), text_measure_(text_measure) {}
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    const Clock& clock() const { return clock_; }
    TextMeasure& text_measure() const { return text_measure_; }

    // The pointer, in twips of the page: moved, its main button pressed or released, its wheel turned by
    // whole notches (positive: away from the user). Once a gesture has changed the page, its further presses
    // do nothing: they were not meant for what lies there now.
    void Move(Point point);
    void Press(Point point, const DoubleClick& rule = {});
    void Release(Point point);
    // The pointer went to another window in the middle of a press: that is no click.
    void CancelPress();
    void Wheel(Point point, int notches);
    void Press(const KeyPress& press);
    void Perform(Control& control, Use use, std::string_view text);
    // The point itself where a click would do something, else the nearest one of a target that is, for a
    // finger, no less than so wide and high; the point itself where there is none.
    Point NearestTarget(Point point, int least) const;
    // Whether a click at this point would do something, for the pointer's looks.
    bool ReactsToClickAt(Point point) const;

    // The tick at which RunDue() has something to do, if any.
    std::optional<std::int64_t> NextDue() const;
    // Runs each timer that is due, once.
    void RunDue();

    void Paint(Canvas& canvas, const Rect& clip) const;
    void DamageAll() { AddDamage({0, 0, kPageWidth, kPageHeight}); }
    // The messages that changed on the page shown since the last call, a line each.
    std::string TakeMessages() { return std::exchange(messages_, {}); }
    // The control that has the focus, where that shows; else null.
    const Control* focused() const { return focus_.shown(); }
    // What has to be painted anew since the last call; an empty box for nothing.
    Rect TakeDamage();

    // The shown form that is on top, or null before the first.
    Form* front() const { return shown_.empty() ? nullptr : shown_.back(); }
    bool IsShown(const Form& form) const;

  private:
    friend class Form;
    friend class Timer;
    void Tell(const std::string& message) { messages_ += (messages_.empty() ? "" : "\n") + message; }
    void Forget(const Form& form);
    void Forget(const Control& control);
    void Remove(Timer& timer) { std::erase(timers_, &timer); }
    void Show(Form& form);
    void Hide(Form& form);
    void Add(Timer& timer) { timers_.push_back(&timer); }
    void AddDamage(const Rect& box) { damage_ = damage_.United(box); }
    bool ContinuesGesture(Point point, const DoubleClick& rule) const;
    void RepeatPress();

    const Clock& clock_;
    TextMeasure& text_measure_;
    std::vector<Form*> shown_;
    std::vector<Timer*> timers_;
    Rect damage_;
    std::string messages_;
    Point pointer_;
    Focus focus_{*this};
    Rect ring_;                           // of the focus, as it was last told
    const Form* gesture_page_ = nullptr;  // where the gesture began
    Point last_press_;
    std::int64_t last_pressed_at_ = 0;
    Control* pressed_ = nullptr;
    std::optional<std::int64_t> repeat_due_;  // while a press goes on by itself
};

}  // namespace onze
