#include "learn/factoring.h"

#include <algorithm>

#include "support/number_text.h"

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
    const std::string verdict = right ? "Gagné ! Vous avez trouvé le bon résultat !"
                                      : "Erreur ! " + Text() + Str(Answer()) + " =" + Str(Answer() * table);
    return verdict + kContinueLine;
}

FactoringPanel::FactoringPanel(Form& form, SharedState& shared) : Panel(shared), ui{form} {
    ui.fleche.on_change = [this] { fleche_Change(); };
    ui.chiffre.on_click = [this] { chiffre_Click(); };
    ui.encore_un.on_click = [this] { NewFactoringQuestion(); };
}

void FactoringPanel::NewFactoringQuestion() {
    const SilentArrows silent(sounds());
    ui.fleche.SetValue(0);
    ui.encore_un.Hide();
    ui.chiffre.SetCaption(kUnanswered);
    ui.fleche.Show();
    ui.label_table1.SetCaption(kEnterAnswer);
    question_ = FactoringQuestion::Draw(shared().random, table());
    ui.enonce.SetCaption(question_.Text());
}

void FactoringPanel::Leave() {
    ui.fleche.SetValue(0);
    ui.encore_un.Hide();
}

void FactoringPanel::fleche_Change() {
    ShowNumber(ui.fleche, ui.chiffre);
}

void FactoringPanel::chiffre_Click() {
    if (ui.chiffre.caption() == kUnanswered || ui.encore_un.visible()) return;
    CountExercise();
    ui.encore_un.Show();
    ui.fleche.Hide();
    const bool right = Val(ui.chiffre.caption()) == question_.Answer();
    SoundAndCount(right);
    ui.label_table1.SetCaption(question_.Correction(right));
}
