#pragma once

#include "forms/stage.h"
#include "services/display_mode.h"
#include "shell/depart.h"
#include "stats/usage_record.h"

// The program from start-up to quit.
class Program {
  public:
    // Throws RunTimeError when the strip of digits cannot be read.
    Program(Platform& platform, Random& random);

    // Start-up; the start screen is shown when it returns. Throws RunTimeError, the taskbar and the display
    // being untouched, when the counters or a picture cannot be read.
    void Load();

    Stage& stage() { return stage_; }
    const Stage& stage() const { return stage_; }
    const Counters& counters() const { return record_.counters; }
    Screens& screens() { return screens_; }

  private:
    void LoadPictures();
    void fin_Click();

    Platform& platform_;
    Stage stage_;
    Sounds sounds_;
    DisplayMode display_;
    UsageRecord record_;
    SharedState shared_;
    Screens screens_;
    Depart depart_;
    float SavedScreenWidth = 0;
    float SavedScreenHeight = 0;
};
