#include "learn/letter_code.h"

#include "support/number_text.h"

namespace onze {

std::string LetterCodeQuestion::Text() const {
    return "X" + Str(table) + " =" + Str(table * LetterCodeAnswer);
}

std::string LetterCodeQuestion::Correction(bool right) const {
    const std::string letter = LetterOfCode(CodeOf(LetterCodeAnswer));
    return (right ? "Bravo ! " : "Faux ! ") + letter + " =" + Str(LetterCodeAnswer) + " donc " + letter +
           " X" + Str(table) + " =" + Str(LetterCodeAnswer) + " X" + Str(table) + " =" +
           Str(table * LetterCodeAnswer) + kContinueLine;
}

LetterCodePanel::LetterCodePanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form}, exercise_(shared.sounds, tally, ui.enonce3, ui.encore_trois, {&ui.letter}), shared_(shared) {
    exercise_.CorrectAt({&ui.chiffre4}, {&ui.letter}, [this] { chiffre4_Click(); });
    ui.encore_trois.on_click = [this] { NewLetterCodeQuestion(); };
}

void LetterCodePanel::NewLetterCodeQuestion() {
    const SilentArrows silent(shared_.sounds);
    ui.enonce3.SetCaption(
        "Sachant que A=1, B=2, C=3 ... Y=25, Z=26,\r"
        "entrez votre réponse grâce aux flèches puis cliquez sur cette réponse pour la correction.");
    ui.letter.Begin();
    ui.encore_trois.Hide();
    question_ = LetterCodeQuestion::Draw(shared_.random, shared_.CurrentTable);
    ui.operation3.SetCaption(question_.Text());
}

void LetterCodePanel::chiffre4_Click() {
    using enum Step;
    const bool right = question_.IsRight(*ui.letter.entered());
    exercise_.GiveVerdict(right, question_.Correction(right),
                          {kCountExercise, kClose, kOffer, kPlay, kCountVerdict, kTell});
}

}  // namespace onze
