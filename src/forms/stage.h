#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "forms/form.h"

class Platform;
class UpDown;

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
    // whole notches (positive: away from the user).
    void Move(Point point);
    void Press(Point point);
    void Release(Point point);
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
    void LetGo();
    void RepeatHeld();

    Platform& platform_;
    std::vector<Form*> shown_;
    std::vector<Timer*> timers_;
    Rect damage_;
    Point pointer_;
    Control* pressed_ = nullptr;
    UpDown* held_ = nullptr;
    int held_half_ = 0;
    std::int64_t held_due_ = 0;
};
