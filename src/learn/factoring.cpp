#include "learn/factoring.h"

#include <algorithm>

#include "support/number_text.h"

namespace onze {

FactoringQuestion FactoringQuestion::Draw(Random& random, int table) {
    random.Randomize();
    const bool sum = random.Draw(2) == 0;
    const int most = sum ? 6 : 12;
    const int a = random.Draw(most) + 1;
    const int b = random.Draw(most) + 1;
    if (sum) return {table, sum, a, b};
    return {table, sum, std::max(a, b), std::min(a, b)};
}

std::string FactoringQuestion::Text() const {
    return Str(first * table) + (sum ? " +" : " -") + Str(second * table) + " = " + Str(table) + " X";
}

std::string FactoringQuestion::Correction(bool right) const {
    const std::string verdict =
        right ? "Gagné ! Vous avez trouvé le bon résultat !"
              : "Erreur ! " + Text() + Str(FactoringAnswer()) + " =" + Str(FactoringAnswer() * table);
    return verdict + kContinueLine;
}

FactoringPanel::FactoringPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form},
      exercise_(shared.sounds, tally, ui.label_table1, ui.encore_un, {&ui.factor}),
      shared_(shared) {
    exercise_.CorrectAt({&ui.chiffre}, {&ui.factor}, [this] { chiffre_Click(); });
    ui.encore_un.on_click = [this] { NewFactoringQuestion(); };
}

void FactoringPanel::NewFactoringQuestion() {
    const SilentArrows silent(shared_.sounds);
    ui.factor.Begin();
    ui.encore_un.Hide();
    ui.label_table1.SetCaption(kEnterAnswer);
    question_ = FactoringQuestion::Draw(shared_.random, shared_.CurrentTable);
    ui.enonce.SetCaption(question_.Text());
}

void FactoringPanel::Leave() {
    ui.factor.Rewind();
    ui.encore_un.Hide();
}

void FactoringPanel::chiffre_Click() {
    using enum Step;
    const bool right = question_.IsRight(*ui.factor.entered());
    exercise_.GiveVerdict(right, question_.Correction(right),
                          {kCountExercise, kOffer, kClose, kPlay, kCountVerdict, kTell});
}

}  // namespace onze
