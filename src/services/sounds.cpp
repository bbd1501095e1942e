#include "services/sounds.h"

#include "forms/form.h"
#include "services/sound_player.h"
#include "support/number_text.h"

namespace onze {

namespace {

// The file numbers run 1 to last and round again.
int Advance(int& counter, int last) {
    counter = counter >= last ? 1 : counter + 1;
    return counter;
}

}  // namespace

void Sounds::PlayClickSound() {
    const int number = Advance(ClickSoundCounter, 10);
    if (ClickSoundEnabled == 1) Play(Digits(number));
}

void Sounds::PlayNavigationSound(std::string_view name) {
    Play(std::string(name));
}

void Sounds::PlayVictorySound() {
    Play(Digits(Advance(VictorySoundCounter, 4)) + ".vic");
}

void Sounds::PlayDefeatSound() {
    Play(Digits(Advance(DefeatSoundCounter, 4)) + ".def");
}

void Sounds::PlayVerdictSound(bool right) {
    if (right) {
        PlayVictorySound();
    } else {
        PlayDefeatSound();
    }
}

void Sounds::Play(const std::string& name) {
    player_.Stop();
    player_.Start(name);
}

void ReturnToStart(Sounds& sounds, Form& start, Form& left) {
    sounds.PlayNavigationSound("3");
    start.Show();
    left.Hide();
}

}  // namespace onze
