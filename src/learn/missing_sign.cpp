#include "learn/missing_sign.h"

#include <array>

#include "support/number_text.h"

MissingSignQuestion MissingSignQuestion::Draw(Random& random, int table) {
    random.Randomize();
    int first = random.Draw(12) + 1;
    int second = random.Draw(12) + 1;
    while (second >= first) {
        first = random.Draw(12) + 1;
        second = random.Draw(12) + 1;
    }
    return {table, first, second, random.Draw(3)};
}

const std::string& MissingSignQuestion::SignText(int sign) {
    static const std::array<std::string, 3> kSigns{"+", "-", "X"};
    return kSigns.at(static_cast<std::size_t>(sign));
}

// The result is this many times the table.
int MissingSignQuestion::Factor() const {
    switch (MissingSign) {
        case 0:
            return first + second;
        case 1:
            return first - second;
        default:
            return first * second * table;
    }
}

std::string MissingSignQuestion::SignExplanation() const {
    return Str(Factor()) + " X" + Str(table);
}

std::string MissingSignQuestion::FirstOperand() const {
    return Str(first * table);
}

std::string MissingSignQuestion::Rest() const {
    return Str(second * table) + " =" + SignExplanation() + " =" + Str(Factor() * table);
}

std::string MissingSignQuestion::Correction(bool right) const {
    return (right ? "Gagné ! " : "Perdu ! ") + FirstOperand() + " " + SignText(MissingSign) + " " + Rest() +
           kContinueLine;
}

MissingSignPanel::MissingSignPanel(Form& form, SharedState& shared) : Panel(shared), ui{form} {
    ui.fleche5.on_change = [this] { fleche5_Change(); };
    ui.signe.on_click = [this] { signe_Click(); };
    ui.encore_quatre.on_click = [this] { NewMissingSignQuestion(); };
}

void MissingSignPanel::NewMissingSignQuestion() {
    const SilentArrows silent(sounds());
    ui.enonce4.SetCaption(kChooseSign);
    ui.fleche5.SetValue(0);
    ui.fleche5.Show();
    ui.encore_quatre.Hide();
    question_ = MissingSignQuestion::Draw(shared().random, table());
    ui.chiffre5.SetCaption(question_.FirstOperand());
    ui.signe.SetCaption("?");
    ui.operation4.SetCaption(question_.Rest());
}

void MissingSignPanel::fleche5_Change() {
    sounds().PlayClickSound();
    ui.signe.SetCaption(MissingSignQuestion::SignText(ui.fleche5.value()));
}

void MissingSignPanel::signe_Click() {
    if (ui.signe.caption() == "?" || ui.encore_quatre.visible()) return;
    CountExercise();
    ui.fleche5.Hide();
    ui.encore_quatre.Show();
    const bool right = ui.fleche5.value() == question_.MissingSign;
    CountAndSound(right);
    ui.enonce4.SetCaption(question_.Correction(right));
}
