#include "learn/letter_code.h"

#include "support/number_text.h"

std::string LetterCodeQuestion::Text() const {
    return "X" + Str(table) + " =" + Str(table * LetterCodeAnswer);
}

std::string LetterCodeQuestion::Correction(bool right) const {
    const std::string letter(1, LetterOf(LetterCodeAnswer));
    return (right ? "Bravo ! " : "Faux ! ") + letter + " =" + Str(LetterCodeAnswer) + " donc " + letter +
           " X" + Str(table) + " =" + Str(LetterCodeAnswer) + " X" + Str(table) + " =" +
           Str(table * LetterCodeAnswer) + kContinueLine;
}

LetterCodePanel::LetterCodePanel(Form& form, SharedState& shared) : Panel(shared), ui{form} {
    ui.fleche4.on_change = [this] { fleche4_Change(); };
    ui.chiffre4.on_click = [this] { chiffre4_Click(); };
    ui.encore_trois.on_click = [this] { NewLetterCodeQuestion(); };
}

void LetterCodePanel::NewLetterCodeQuestion() {
    const SilentArrows silent(sounds());
    ui.enonce3.SetCaption(
        "Sachant que A=1, B=2, C=3 ... Y=25, Z=26,\r"
        "entrez votre réponse grâce aux flèches puis cliquez sur cette réponse pour la correction.");
    ui.fleche4.SetValue('A');
    ui.fleche4.Show();
    ui.encore_trois.Hide();
    ui.chiffre4.SetCaption("A");
    question_ = LetterCodeQuestion::Draw(shared().random, table());
    ui.operation3.SetCaption(question_.Text());
}

void LetterCodePanel::fleche4_Change() {
    sounds().PlayClickSound();
    ui.chiffre4.SetCaption(std::string(1, static_cast<char>(ui.fleche4.value())));
}

void LetterCodePanel::chiffre4_Click() {
    if (ui.encore_trois.visible()) return;
    CountExercise();
    ui.fleche4.Hide();
    ui.encore_trois.Show();
    const char letter = ui.chiffre4.caption().front();
    const bool right = LetterCodeQuestion::NumberOf(letter) == question_.LetterCodeAnswer;
    SoundAndCount(right);
    ui.enonce3.SetCaption(question_.Correction(right));
}
