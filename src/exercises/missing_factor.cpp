#include "exercises/missing_factor.h"

#include "support/number_text.h"

MissingFactorQuestion MissingFactorQuestion::Draw(Random& random) {
    const int missing = random.Draw(10) + 2;
    const int second = random.Draw(10) + 2;
    return {missing, second};
}

std::string MissingFactorQuestion::Text() const {
    return TimesText(second, second * MissingFactor);
}

std::string MissingFactorQuestion::Correction(bool right) const {
    if (right) return kSolved;
    return "Erreur !" + Str(MissingFactor) + " " + Text() + " !" + kContinueLine;
}

MissingFactorPanel::MissingFactorPanel(Form& form, SharedState& shared) : ExercisePanel(shared), ui{form} {
    Link(ui.flech5, ui.chiffre6);
    ui.chiffre6.on_click = [this] { chiffre6_Click(); };
    ui.encor_quatre.on_click = [this] { NewMissingFactorExercise(); };
}

void MissingFactorPanel::NewMissingFactorExercise() {
    const SilentArrows silent(sounds());
    Ask(ui.flech5, ui.chiffre6);
    ui.encor_quatre.Hide();
    ui.texte3.SetCaption(kEnterAnswerOnTwoLines);
    question_ = MissingFactorQuestion::Draw(random());
    ui.enonce4.SetCaption(question_.Text());
}

// A right answer is counted after its message, a wrong one before its sound.
void MissingFactorPanel::chiffre6_Click() {
    if (!AnswerGuard(ui.chiffre6, ui.encor_quatre)) return;
    const bool right = Val(ui.chiffre6.caption()) == question_.MissingFactor;
    if (right) {
        sounds().PlayVictorySound();
        ui.texte3.SetCaption(question_.Correction(right));
        Count(right);
    } else {
        Tell(right, ui.texte3, question_.Correction(right));
    }
    CountExercise();
    ui.encor_quatre.Show();
    ui.flech5.Hide();
}
