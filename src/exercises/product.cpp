#include "exercises/product.h"

#include "support/number_text.h"

namespace onze {

ProductQuestion ProductQuestion::Draw(Random& random) {
    const int first = random.Draw(11) + 2;
    const int second = random.Draw(11) + 2;
    return {first, second};
}

std::string ProductQuestion::Text() const {
    return Str(first) + " X" + Str(second) + " =";
}

std::string ProductQuestion::Correction(bool right) const {
    const std::string verdict = right ? "Bravo, vous avez trouvé la bonne solution !"
                                      : "Erreur ! " + Text() + Str(ProductAnswer()) + " !";
    return verdict + kContinueLine;
}

ProductPanel::ProductPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form}, exercise_(shared.sounds, tally, ui.texte, ui.encor_deux, {&ui.product}), shared_(shared) {
    exercise_.CorrectAt({&ui.chiffre3}, {&ui.product}, [this] { chiffre3_Click(); });
    ui.encor_deux.on_click = [this] { NewProductExercise(); };
}

void ProductPanel::NewProductExercise() {
    const SilentArrows silent(shared_.sounds);
    ui.texte.SetCaption(kEnterAnswer);
    ui.product.Begin();
    ui.encor_deux.Hide();
    question_ = ProductQuestion::Draw(shared_.random);
    ui.enonce2.SetCaption(question_.Text());
}

void ProductPanel::chiffre3_Click() {
    using enum Step;
    const bool right = question_.IsRight(*ui.product.entered());
    exercise_.GiveVerdict(right, question_.Correction(right),
                          {kOffer, kClose, kCountVerdict, kPlay, kTell, kCountExercise});
}

}  // namespace onze
