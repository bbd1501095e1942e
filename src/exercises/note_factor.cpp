#include "exercises/note_factor.h"

#include <array>

#include "support/number_text.h"

namespace onze {

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

NoteFactorPanel::NoteFactorPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form}, exercise_(shared.sounds, tally, ui.texte5, ui.encor_six, {&ui.note}), shared_(shared) {
    exercise_.CorrectAt({&ui.chiffre9}, {&ui.note}, [this] { chiffre9_Click(); });
    ui.encor_six.on_click = [this] { NewNoteFactorExercise(); };
}

void NoteFactorPanel::NewNoteFactorExercise() {
    const SilentArrows silent(shared_.sounds);
    ui.texte5.SetCaption(
        "Sachant que DO=3, RE=4 ... LA=8, SI=9, entrez votre réponse grâce aux flèches puis cliquez sur "
        "cette réponse pour la correction.");
    ui.note.Begin();
    ui.encor_six.Hide();
    question_ = NoteFactorQuestion::Draw(shared_.random);
    ui.enonce7.SetCaption(question_.Text());
}

// The note first shown is an answer, too. A right answer is counted after its sound, a wrong one before.
void NoteFactorPanel::chiffre9_Click() {
    using enum Step;
    if (question_.IsRight(*ui.note.entered())) {
        exercise_.GiveVerdict(true, "Bravo ! ", {kClose, kOffer, kTell, kPlay, kCountVerdict});
    } else {
        exercise_.GiveVerdict(false, "Erreur ! ", {kClose, kOffer, kCountVerdict, kPlay, kTell});
    }
    shared_.NoteName = NoteFactorQuestion::NoteOf(question_.NoteFactor);
    ui.texte5.SetCaption(ui.texte5.caption() + question_.Explanation(shared_.NoteName));
    exercise_.CountExercise();
}

}  // namespace onze
