#include "exercises/factored_sum.h"

#include <algorithm>

#include "support/number_text.h"

FactoredSumQuestion FactoredSumQuestion::Draw(Random& random) {
    random.Randomize();
    const bool sum = random.Draw(2) == 0;
    const int factor = random.Draw(9) + 3;
    const auto draw_multiple = [&random, factor] { return factor * (random.Draw(12) + 1); };
    int first = draw_multiple();
    int second = draw_multiple();
    if (sum) return {sum, factor, first, second};
    while (second == first) {
        first = draw_multiple();
        second = draw_multiple();
    }
    return {sum, factor, std::max(first, second), std::min(first, second)};
}

std::string FactoredSumQuestion::Text() const {
    return Str(first) + (sum ? " +" : " -") + Str(second) + " =" + Str(FactoredFactor) + " X";
}

std::string FactoredSumQuestion::Correction(bool right) const {
    if (right) return kSolved;
    return "Erreur ! " + Text() + Str(Cofactor()) + " =" + Str(FactoredResult()) + " !" + kContinueLine;
}

FactoredSumPanel::FactoredSumPanel(Form& form, SharedState& shared) : ExercisePanel(shared), ui{form} {
    Link(ui.flech6, ui.chiffre7);
    Link(ui.flech7, ui.chiffre8);
    ui.chiffre7.on_click = [this] { chiffre7_Click(); };
    ui.chiffre8.on_click = [this] { chiffre8_Click(); };
    ui.encor_cinq.on_click = [this] { NewFactoredSumExercise(); };
}

void FactoredSumPanel::NewFactoredSumExercise() {
    const SilentArrows silent(sounds());
    random().Randomize();
    ui.enonce6.SetCaption(" =");
    Ask(ui.flech7, ui.chiffre8);
    Ask(ui.flech6, ui.chiffre7);
    ui.encor_cinq.Hide();
    ui.texte4.SetCaption(kEnterAnswers);
    question_ = FactoredSumQuestion::Draw(random());
    ui.flech7.SetIncrement(question_.FactoredFactor);
    ui.enonce5.SetCaption(question_.Text());
}

void FactoredSumPanel::chiffre7_Click() {
    if (!AnswerGuard(ui.chiffre7, ui.encor_cinq) || !AnswerGuard(ui.chiffre8, ui.encor_cinq)) return;
    SetAllVisible(false, {&ui.flech6, &ui.flech7});
    ui.encor_cinq.Show();
    const bool right = Val(ui.chiffre7.caption()) == question_.Cofactor() &&
                       Val(ui.chiffre8.caption()) == question_.FactoredResult();
    Tell(right, ui.texte4, question_.Correction(right));
    CountExercise();
}
