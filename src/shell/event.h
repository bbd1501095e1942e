#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "forms/key.h"
#include "forms/page_view.h"

namespace onze {

class Control;

// What a host tells the program. Positions are pixels of its window.
namespace event {

// The program starts; the first of all.
struct Started {};
// The window has this size now.
struct WindowResized {
    int width;
    int height;
};
// A time has come that a reaction named, or may have come.
struct TimePassed {};
struct PointerMoved {
    Pixel at;
};
// The main button, or a finger, went down. The system takes two presses for one gesture when they are no more
// than this time and this many pixels apart.
struct PointerPressed {
    Pixel at;
    bool finger = false;         // which covers more than a point
    std::int64_t time = 0;       // milliseconds of the clock that the system's events have
    int double_click_time = -1;  // milliseconds; below 0: no two presses are one gesture
    double double_click_distance = 0;
};
struct PointerReleased {
    Pixel at;
};
// Another window has the pointer, and will get the release.
struct PointerLost {};
struct KeyPressed {
    KeyPress press;
};
// A screen reader asks for something, instead of its user's keys.
struct Used {
    Control* control;  // of the page
    Use use;
    std::string text{};  // that is entered
};
// By how much: 120 for each notch of a common wheel, above 0 when it turns away from the user.
struct WheelTurned {
    Pixel at;
    int turn;
};

}  // namespace event

using Event = std::variant<event::Started, event::WindowResized, event::TimePassed, event::PointerMoved,
                           event::PointerPressed, event::PointerReleased, event::PointerLost,
                           event::KeyPressed, event::Used, event::WheelTurned>;

// What the host has to do now.
struct Reaction {
    enum class State {
        kRuns,
        kEnded,   // leave, with success
        kFailed,  // tell `failure` to the user, then leave, without success
    };

    State state = State::kRuns;
    std::string failure;                  // French
    PixelBox repaint;                     // empty for nothing
    bool hand = false;                    // whether the pointer shows that a click would do something
    std::optional<std::int64_t> wake_at;  // the tick at which TimePassed is due
    bool print = false;                   // the page shown: PaintOnPaper
    std::string say;                      // to a screen reader: the messages that changed, a line each
};

}  // namespace onze
