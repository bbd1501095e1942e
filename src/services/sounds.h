#pragma once

#include <string>
#include <string_view>

namespace onze {

class Form;
class SoundPlayer;

// The program's one sound player: at most one sound is heard, each new one cuts off the one before. None of
// its routines fails, whatever the sound files are.
class Sounds {
  public:
    explicit Sounds(SoundPlayer& player) : player_(player) {}

    // The next of the ten clicks. A closed gate keeps it silent, but the click is used up all the same.
    void PlayClickSound();
    // The sound file of exactly this name.
    void PlayNavigationSound(std::string_view name);
    void PlayVictorySound();
    void PlayDefeatSound();
    // The victory or the defeat sound.
    void PlayVerdictSound(bool right);

    // The gate of the click sound: open while it is 1.
    int ClickSoundEnabled = 0;

  private:
    void Play(const std::string& name);

    SoundPlayer& player_;
    int ClickSoundCounter = 0;
    int VictorySoundCounter = 0;
    int DefeatSoundCounter = 0;
};

// Keeps the click sound's gate closed while arrows are set by the program, and open from then on.
class SilentArrows {
  public:
    explicit SilentArrows(Sounds& sounds) : sounds_(sounds) { sounds_.ClickSoundEnabled = 0; }
    ~SilentArrows() { sounds_.ClickSoundEnabled = 1; }
    SilentArrows(const SilentArrows&) = delete;
    SilentArrows& operator=(const SilentArrows&) = delete;

  private:
    Sounds& sounds_;
};

// Leaves a screen for the start screen, with its sound.
void ReturnToStart(Sounds& sounds, Form& start, Form& left);

}  // namespace onze
