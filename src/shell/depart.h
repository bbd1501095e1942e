#pragma once

#include <string>

#include "shell/screens.h"

// The start screen: its prompts, its clock, and the way to every other screen. Quitting is the program's.
class Depart {
  public:
    Depart(Platform& platform, Screens& screens, SharedState& shared);

    // Prepares what the screen shows at start-up: date, time, the state of the first prompt.
    void Prepare();

  private:
    // Names the prompt now shown. Two items of one state do not replace each other's prompt.
    enum class Prompt {
        kChoose,
        kTable,
        kPythagoras,
        kReportPicture,
        kQuit,
        kLessonsOrExercises,
        kReportLabel
    };

    void WireClicks();
    void WireHover();
    // Tells what a click would do, unless the prompt shown is already one of this state.
    void Hover(Prompt state, const std::string& text);

    void chiffre_Click(int i);
    void apprendre_leçon_Click();
    void pytha_Click();
    void exos_Click();
    void Image_bilan_Click();
    void bilan_utilisation_Click();
    void timer_Timer();
    void Open(Form& screen);

    Platform& platform_;
    Screens& screens_;
    DepartUi& ui_;
    SharedState& shared_;
    Prompt HoverState = Prompt::kChoose;
};
