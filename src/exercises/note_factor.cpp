#include "exercises/note_factor.h"

#include <array>

#include "support/number_text.h"

NoteFactorQuestion NoteFactorQuestion::Draw(Random& random) {
    const int factor = random.Draw(7) + kFirstNote;
    const int second = random.Draw(12) + 1;
    return {factor, second};
}

const std::string& NoteFactorQuestion::NoteOf(int factor) {
    static const std::array<std::string, 7> kNotes{"DO", "RE", "MI", "FA", "SOL", "LA", "SI"};
    return kNotes.at(static_cast<std::size_t>(factor - kFirstNote));
}

std::string NoteFactorQuestion::Text() const {
    return TimesText(second, second * NoteFactor);
}

std::string NoteFactorQuestion::Explanation(const std::string& note) const {
    return "C'est " + note + " car " + note + " =" + Str(NoteFactor) + " donc \r" + Str(NoteFactor) + " " +
           Text() + kContinueLine;
}

NoteFactorPanel::NoteFactorPanel(Form& form, SharedState& shared) : ExercisePanel(shared), ui{form} {
    ui.flech8.on_change = [this] { flech8_Change(); };
    ui.chiffre9.on_click = [this] { chiffre9_Click(); };
    ui.encor_six.on_click = [this] { NewNoteFactorExercise(); };
}

void NoteFactorPanel::NewNoteFactorExercise() {
    const SilentArrows silent(sounds());
    ui.texte5.SetCaption(
        "Sachant que DO=3, RE=4 ... LA=8, SI=9, entrez votre réponse grâce aux flèches puis cliquez sur "
        "cette réponse pour la correction.");
    Ask(ui.flech8, ui.chiffre9);
    ui.chiffre9.SetCaption(NoteFactorQuestion::NoteOf(NoteFactorQuestion::kFirstNote));
    ui.encor_six.Hide();
    question_ = NoteFactorQuestion::Draw(random());
    ui.enonce7.SetCaption(question_.Text());
}

void NoteFactorPanel::flech8_Change() {
    sounds().PlayClickSound();
    ui.chiffre9.SetCaption(NoteFactorQuestion::NoteOf(ui.flech8.value() + NoteFactorQuestion::kFirstNote));
}

// The note first shown is an answer too, so only "Continuer" guards this click. A right answer is
// counted last, a wrong one first.
void NoteFactorPanel::chiffre9_Click() {
    if (ui.encor_six.visible()) return;
    ui.flech8.Hide();
    ui.encor_six.Show();
    if (ui.flech8.value() == question_.NoteFactor - NoteFactorQuestion::kFirstNote) {
        ui.texte5.SetCaption("Bravo ! ");
        sounds().PlayVictorySound();
        Count(true);
    } else {
        Tell(false, ui.texte5, "Erreur ! ");
    }
    shared().NoteName = NoteFactorQuestion::NoteOf(question_.NoteFactor);
    ui.texte5.SetCaption(ui.texte5.caption() + question_.Explanation(shared().NoteName));
    CountExercise();
}
