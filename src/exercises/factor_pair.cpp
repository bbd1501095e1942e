#include "exercises/factor_pair.h"

#include "support/number_text.h"

FactorPairQuestion FactorPairQuestion::Draw(Random& random) {
    const int first = random.Draw(10) + 3;
    int second = random.Draw(10) + 3;
    while (second == first) second = random.Draw(10) + 3;
    return {first, second};
}

std::string FactorPairQuestion::Text() const {
    return "Dans quelle Table de Multiplication puis-je trouver" + Str(PairProduct()) + " ?";
}

std::string FactorPairQuestion::Begun(int divisor) const {
    return Str(PairProduct()) + " = " + Str(divisor) + " X";
}

std::string FactorPairQuestion::NoDivisor() const {
    return "Erreur ! On peut trouver" + Str(PairProduct()) + " dans les Tables de Multiplication par" +
           Str(PairFirst) + " et par" + Str(PairSecond) + " !\r" + Str(PairProduct()) + " =" +
           Str(PairFirst) + " X" + Str(PairSecond) + " ! " + kContinue;
}

std::string FactorPairQuestion::Correction(bool right, int divisor) const {
    if (right) return kSolved;
    return "Erreur !" + Str(PairProduct()) + " =" + Str(divisor) + " X" + Str(PairProduct() / divisor) +
           " !" + kContinueLine;
}

FactorPairPanel::FactorPairPanel(Form& form, SharedState& shared) : ExercisePanel(shared), ui{form} {
    Link(ui.flech3, ui.chiffre4);
    Link(ui.flech4, ui.chiffre5);
    ui.chiffre4.on_click = [this] { chiffre4_Click(); };
    ui.chiffre5.on_click = [this] { chiffre5_Click(); };
    ui.encor_trois.on_click = [this] { NewFactorPairExercise(); };
}

void FactorPairPanel::NewFactorPairExercise() {
    const SilentArrows silent(sounds());
    ui.texte2.SetCaption(kEnterAnswerOnTwoLines);
    Ask(ui.flech3, ui.chiffre4);
    ui.flech4.SetValue(0);
    SetAllVisible(false, {&ui.encor_trois, &ui.chiffre5, &ui.flech4});
    SetAllVisible(true, {&ui.chiffre4, &ui.enonce3});
    question_ = FactorPairQuestion::Draw(random());
    ui.enonce3.SetCaption(question_.Text());
}

void FactorPairPanel::chiffre4_Click() {
    if (!AnswerGuard(ui.chiffre4, ui.encor_trois)) return;
    ui.flech3.Hide();
    if (question_.IsDivisor(Val(ui.chiffre4.caption()))) {
        AskForSecondFactor();
        return;
    }
    Count(false);
    CountExercise();
    sounds().PlayDefeatSound();
    ui.texte2.SetCaption(question_.NoDivisor());
    ui.encor_trois.Show();
}

// The moves are in pixels: in twips the frame of the answer would cover the end of the equation, and its
// arrow, which stands over it, would not be in the middle.
void FactorPairPanel::AskForSecondFactor() {
    sounds().PlayVictorySound();
    ui.texte2.SetCaption(kRightGoOn);
    ui.enonce3.SetCaption(question_.Begun(Val(ui.chiffre4.caption())));
    ui.chiffre5.SetCaption(kUnanswered);
    ui.chiffre5.SetLeft(ui.enonce3.box().right() + 3_px);
    ui.chiffre5.Show();
    ui.flech4.SetLeft(ui.chiffre5.box().left - 8_px);
    ui.flech4.Show();
    ui.chiffre4.Hide();
}

void FactorPairPanel::chiffre5_Click() {
    if (!AnswerGuard(ui.chiffre5, ui.encor_trois)) return;
    ui.flech4.Hide();
    const int divisor = Val(ui.chiffre4.caption());
    const bool right = Val(ui.chiffre5.caption()) * divisor == question_.PairProduct();
    Tell(right, ui.texte2, question_.Correction(right, divisor));
    CountExercise();
    ui.encor_trois.Show();
}
