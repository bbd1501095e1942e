#include "exercises/factor_pair.h"

#include "support/number_text.h"

namespace onze {

FactorPairQuestion FactorPairQuestion::Draw(Random& random) {
    const int first = random.Draw(10) + 3;
    int second = random.Draw(10) + 3;
    while (second == first) second = random.Draw(10) + 3;
    return {first, second};
}

std::string FactorPairQuestion::Text() const {
    return "Dans quelle Table de Multiplication puis-je trouver" + Str(PairProduct()) + " ?";
}

std::string FactorPairQuestion::EquationFrom(int divisor) const {
    return Str(PairProduct()) + " = " + Str(divisor) + " X";
}

std::string FactorPairQuestion::TableCorrection() const {
    return "Erreur ! On peut trouver" + Str(PairProduct()) + " dans les Tables de Multiplication par" +
           Str(PairFirst) + " et par" + Str(PairSecond) + " !\r" + Str(PairProduct()) + " =" +
           Str(PairFirst) + " X" + Str(PairSecond) + " ! " + kContinue;
}

std::string FactorPairQuestion::Correction(bool right, int divisor) const {
    if (right) return kSolved;
    return "Erreur !" + Str(PairProduct()) + " =" + Str(divisor) + " X" + Str(PairProduct() / divisor) +
           " !" + kContinueLine;
}

FactorPairPanel::FactorPairPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form},
      exercise_(shared.sounds, tally, ui.texte2, ui.encor_trois, {&ui.first, &ui.second}),
      shared_(shared) {
    exercise_.CorrectAt({&ui.chiffre4}, {&ui.first}, [this] { chiffre4_Click(); });
    exercise_.CorrectAt({&ui.chiffre5}, {&ui.second}, [this] { chiffre5_Click(); });
    ui.encor_trois.on_click = [this] { NewFactorPairExercise(); };
}

void FactorPairPanel::NewFactorPairExercise() {
    const SilentArrows silent(shared_.sounds);
    ui.texte2.SetCaption(kEnterAnswerOnTwoLines);
    ui.first.Begin();
    ui.second.Rewind();
    ui.second.Close();
    SetAllVisible(false, {&ui.encor_trois, &ui.chiffre5});
    SetAllVisible(true, {&ui.chiffre4, &ui.enonce3});
    question_ = FactorPairQuestion::Draw(shared_.random);
    ui.enonce3.SetCaption(question_.Text());
}

void FactorPairPanel::chiffre4_Click() {
    using enum Step;
    ui.first.Close();
    if (question_.IsDivisor(*ui.first.entered())) {
        AskForSecondFactor();
    } else {
        exercise_.GiveVerdict(false, question_.TableCorrection(),
                              {kCountVerdict, kCountExercise, kPlay, kTell, kOffer});
    }
}

// The moves are in pixels: in twips the frame of the answer would cover the end of the equation, and its
// arrow, which stands over it, would not be in the middle.
void FactorPairPanel::AskForSecondFactor() {
    shared_.sounds.PlayVictorySound();
    ui.texte2.SetCaption(kRightGoOn);
    ui.enonce3.SetCaption(question_.EquationFrom(*ui.first.entered()));
    ui.chiffre5.SetLeft(ui.enonce3.box().right() + 3_px);
    ui.chiffre5.Show();
    ui.flech4.SetLeft(ui.chiffre5.box().left - 8_px);
    ui.second.Begin();
    ui.chiffre4.Hide();
}

void FactorPairPanel::chiffre5_Click() {
    using enum Step;
    const int divisor = *ui.first.entered();
    const bool right = question_.IsRight(divisor, *ui.second.entered());
    exercise_.GiveVerdict(right, question_.Correction(right, divisor),
                          {kClose, kCountVerdict, kPlay, kTell, kCountExercise, kOffer});
}

}  // namespace onze
