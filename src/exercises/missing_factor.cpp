#include "exercises/missing_factor.h"

#include "support/number_text.h"

namespace onze {

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

MissingFactorPanel::MissingFactorPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form}, exercise_(shared.sounds, tally, ui.texte3, ui.encor_quatre, {&ui.factor}), shared_(shared) {
    exercise_.CorrectAt({&ui.chiffre6}, {&ui.factor}, [this] { chiffre6_Click(); });
    ui.encor_quatre.on_click = [this] { NewMissingFactorExercise(); };
}

void MissingFactorPanel::NewMissingFactorExercise() {
    const SilentArrows silent(shared_.sounds);
    ui.factor.Begin();
    ui.encor_quatre.Hide();
    ui.texte3.SetCaption(kEnterAnswerOnTwoLines);
    question_ = MissingFactorQuestion::Draw(shared_.random);
    ui.enonce4.SetCaption(question_.Text());
}

// A right answer is counted after its message, a wrong one before its sound.
void MissingFactorPanel::chiffre6_Click() {
    using enum Step;
    const bool right = question_.IsRight(*ui.factor.entered());
    const std::string text = question_.Correction(right);
    if (right) {
        exercise_.GiveVerdict(right, text, {kPlay, kTell, kCountVerdict, kCountExercise, kOffer, kClose});
    } else {
        exercise_.GiveVerdict(right, text, {kCountVerdict, kPlay, kTell, kCountExercise, kOffer, kClose});
    }
}

}  // namespace onze
