#pragma once

#include <string>

#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/timer.h"
#include "services/calendar.h"
#include "stats/shared_state.h"

namespace onze {

struct Screens;

// The start screen: its prompts, its clock, and the way to every other screen. Quitting is the program's.
class Depart {
  public:
    Depart(Stage& stage, const Calendar& calendar, SharedState& shared, Screens& screens);

    // Prepares what the screen shows at start-up: date, time, the state of the first prompt.
    void Prepare();

    Form form;
    ControlArray<Image> chiffre;  // member i chooses the table i + 2
    Image pytha, apprendre_leçon, exos, Image_bilan;
    Label label_table, Label1, Label2, Label3, bilan_utilisation, heure, dates, fin;
    Timer timer;

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
    void WirePrompts();
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

    const Calendar& calendar_;
    SharedState& shared_;
    Screens& screens_;
    Prompt HoverState = Prompt::kChoose;
};

}  // namespace onze
