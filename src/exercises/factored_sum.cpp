#include "exercises/factored_sum.h"

#include <algorithm>

#include "support/number_text.h"

namespace onze {

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

FactoredSumPanel::FactoredSumPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form},
      exercise_(shared.sounds, tally, ui.texte4, ui.encor_cinq, {&ui.cofactor, &ui.result}),
      shared_(shared) {
    exercise_.CorrectAt({&ui.chiffre7}, {&ui.cofactor, &ui.result}, [this] { chiffre7_Click(); });
    exercise_.CorrectAt({&ui.chiffre8}, {&ui.cofactor, &ui.result}, [this] { chiffre8_Click(); });
    ui.encor_cinq.on_click = [this] { NewFactoredSumExercise(); };
}

void FactoredSumPanel::NewFactoredSumExercise() {
    const SilentArrows silent(shared_.sounds);
    shared_.random.Randomize();
    ui.enonce6.SetCaption(" =");
    ui.result.Begin();
    ui.cofactor.Begin();
    ui.encor_cinq.Hide();
    ui.texte4.SetCaption(kEnterAnswers);
    question_ = FactoredSumQuestion::Draw(shared_.random);
    ui.flech7.SetIncrement(question_.FactoredFactor);
    ui.enonce5.SetCaption(question_.Text());
}

void FactoredSumPanel::chiffre7_Click() {
    using enum Step;
    const bool right = question_.IsRight(*ui.cofactor.entered(), *ui.result.entered());
    exercise_.GiveVerdict(right, question_.Correction(right),
                          {kClose, kOffer, kCountVerdict, kPlay, kTell, kCountExercise});
}

}  // namespace onze
