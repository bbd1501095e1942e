#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/label.h"
#include "forms/up_down.h"
#include "shell/program.h"
#include "support/headless_host.h"
#include "support/scripted_random.h"

namespace onze {

using Names = std::vector<std::string>;

// The whole program as a pupil uses it: with the pointer or with the keys, eyes and ears.
class Pupil {
  public:
    // Starts the program with these counters in its file.
    explicit Pupil(const Counters& counters = {});

    // Moves onto a control, presses and releases. Click() fails the test when the pointer cannot find the
    // control, Tap() does not mind.
    void Click(const Control& control);
    void Tap(const Control& control);
    // A click that runs into a full counter: the error names it, and nothing is saved.
    void ClickIntoFull(const Control& control, const std::string& counter);
    void MoveOnto(const Control& control);
    // Presses a key, or a letter's or digit's one after the other.
    void Press(Key key);
    void Type(const std::string& characters);
    // Walks there with the Tab key; tells whether that led there.
    bool FocusOn(const Control& control);
    // Presses an arrow's upper (positive) or lower half so many times.
    void Step(const UpDown& arrows, int times);
    // Turns the arrow to a value, one press at a time, up or down by its increment.
    void Turn(const UpDown& arrows, int value);
    // Lets time pass, a millisecond at a time.
    void Wait(std::int64_t milliseconds);

    // Script what the exercises of a screen draw when it is shown; the draws of one, by its place, may be
    // given.
    void ExpectTable(int place = -1, const Draws& draws = {});
    void ExpectExercises(int place = -1, const Draws& draws = {});
    // Script that and open the screen.
    void ChooseTable(int table, int place = -1, const Draws& draws = {});
    void OpenExercises(int place = -1, const Draws& draws = {});

    // The names of the sounds started since the last call.
    Names Heard();
    bool Sees(const Form& form) const;

    // Clicks SORTIE and reads what was saved.
    Counters Quit();

    bool by_keys = false;  // clicks and steps

    HeadlessHost host;
    ScriptedRandom random;
    Program program;
    const Reaction start;
    Reaction reaction;  // to the last click
    bool hand = false;  // which the pointer was just before
    Screens& screens;

  private:
    void Expect(std::vector<Draws> all, int place, const Draws& draws);
    // The middle of a control, or its corner where another control covers the middle.
    Pixel On(const Control& control) const;
    Reaction Prepared(const Counters& counters);

    std::size_t heard_ = 0;
};

// Puts an arrow through its values, which it steps through both ways and never passes. Each change, and
// nothing else, is heard and read in its answer.
void TryOut(Pupil& pupil, const UpDown& arrow, const Label& answer, const Names& values);

// Numbers as answers show them, up to the last one.
Names Numbers(const std::string& before, int first, int last, int step = 1);

}  // namespace onze
