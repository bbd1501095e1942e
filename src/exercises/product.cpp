#include "exercises/product.h"

#include "support/number_text.h"

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

ProductPanel::ProductPanel(Form& form, SharedState& shared) : ExercisePanel(shared), ui{form} {
    Link(ui.flech2, ui.chiffre3);
    ui.chiffre3.on_click = [this] { chiffre3_Click(); };
    ui.encor_deux.on_click = [this] { NewProductExercise(); };
}

void ProductPanel::NewProductExercise() {
    const SilentArrows silent(sounds());
    ui.texte.SetCaption(kEnterAnswer);
    Ask(ui.flech2, ui.chiffre3);
    ui.encor_deux.Hide();
    question_ = ProductQuestion::Draw(random());
    ui.enonce2.SetCaption(question_.Text());
}

void ProductPanel::chiffre3_Click() {
    if (!AnswerGuard(ui.chiffre3, ui.encor_deux)) return;
    ui.encor_deux.Show();
    ui.flech2.Hide();
    const bool right = Val(ui.chiffre3.caption()) == question_.ProductAnswer();
    Tell(right, ui.texte, question_.Correction(right));
    CountExercise();
}
