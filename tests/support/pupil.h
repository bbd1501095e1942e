#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms/label.h"
#include "forms/up_down.h"
#include "shell/program.h"
#include "support/headless_platform.h"
#include "support/scripted_random.h"

// The whole program as a pupil uses it: with the pointer, eyes and ears.
class Pupil {
  public:
    // Starts the program, in a data folder that prepare has changed.
    Pupil() : Pupil([](HeadlessPlatform&) {}) {}
    explicit Pupil(const std::function<void(HeadlessPlatform&)>& prepare);

    // Starts the program anew, with these counters in its file.
    void StartWith(const Counters& counters);

    // Moves onto a control, presses and releases. Click() fails the test when the pointer cannot find the
    // control, Tap() does not mind.
    void Click(const Control& control);
    void Tap(const Control& control);
    // A click that runs into a full counter: the error names it, and nothing is saved.
    void ClickIntoFull(const Control& control, const std::string& counter);
    void MoveOnto(const Control& control);
    // Presses an arrow's upper (positive) or lower half so many times.
    void Step(const UpDown& arrows, int times);
    // Turns the arrow to a value, one press at a time, up or down by its increment.
    void Turn(const UpDown& arrows, int value);
    // Lets time pass, a millisecond at a time.
    void Wait(std::int64_t milliseconds);

    // The names of the sounds started since the last call.
    std::vector<std::string> Heard();
    // The texts of the page shown, top controls last.
    std::vector<std::string> Seen() const;
    bool Sees(const Form& form) const;

    HeadlessPlatform platform;
    ScriptedRandom random;
    Program program;
    Screens& screens;

    Counters SavedCounters() const;
    // Clicks SORTIE and reads what was saved.
    Counters Quit();

  private:
    // The middle of a control, or its corner where another control covers the middle.
    Point On(const Control& control) const;

    std::size_t heard_ = 0;
};

inline const std::string kGoOn = "\rCliquez sur Continuer pour un autre exercice.";

using Names = std::vector<std::string>;
