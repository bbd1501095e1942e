#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "forms/form.h"

class Platform;
class UpDown;

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
    explicit Stage(Platform& platform) : platform_(platform) {}
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    Platform& platform() const { return platform_; }

    // The pointer, in twips of the page: moved, its main button pressed or released, its wheel turned by
    // whole notches (positive: away from the user). Once a gesture has changed the page, its further presses
    // do nothing: they were not meant for what lies there now.
    void Move(Point point);
    void Press(Point point, const DoubleClick& rule = {});
    void Release(Point point);
    // The pointer went to another window in the middle of a press: that is no click.
    void CancelPress();
    void Wheel(Point point, int notches);
    // Whether a click at this point would do something, for the pointer's looks.
    bool ReactsToClickAt(Point point) const;

    // The tick at which RunDue() has something to do, if any.
    std::optional<std::int64_t> NextDue() const;
    // Runs each timer that is due, once.
    void RunDue();

    void Paint(Canvas& canvas, const Rect& clip) const;
    // What has to be painted anew since the last call; an empty box for nothing.
    Rect TakeDamage();

    // The shown form that is on top, or null before the first.
    Form* front() const { return shown_.empty() ? nullptr : shown_.back(); }
    bool IsShown(const Form& form) const;

  private:
    friend class Form;
    friend class Timer;
    void Show(Form& form);
    void Hide(Form& form);
    void Add(Timer& timer) { timers_.push_back(&timer); }
    void AddDamage(const Rect& box) { damage_ = damage_.United(box); }
    bool ContinuesGesture(Point point, const DoubleClick& rule) const;
    void RepeatHeld();

    Platform& platform_;
    std::vector<Form*> shown_;
    std::vector<Timer*> timers_;
    Rect damage_;
    Point pointer_;
    const Form* gesture_page_ = nullptr;  // where the gesture began
    Point last_press_;
    std::int64_t last_pressed_at_ = 0;
    Control* pressed_ = nullptr;
    UpDown* held_ = nullptr;
    int held_half_ = 0;
    std::int64_t held_due_ = 0;
};
