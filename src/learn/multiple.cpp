#include "learn/multiple.h"

#include "support/number_text.h"

MultipleQuestion MultipleQuestion::Draw(Random& random, int table) {
    random.Randomize();
    return random.Draw(2) == 0 ? DrawMultiple(random, table) : DrawOther(random, table);
}

// The terms are y and x times the table, not y and x - y times.
MultipleQuestion MultipleQuestion::DrawMultiple(Random& random, int table) {
    const int x = random.Draw(20) + 3;
    int y = random.Draw(14) + 1;
    while (y >= x) y = random.Draw(x) + 1;
    return {table, true, y * table, x * table};
}

MultipleQuestion MultipleQuestion::DrawOther(Random& random, int table) {
    const int a = random.Draw(50) + 1;
    int b = 0;
    do {
        b = random.Draw(50) + 1;
    } while ((a + b) % table == 0);
    return {table, false, a, b};
}

std::string MultipleQuestion::Addition() const {
    return Str(SumFirstTerm) + " +" + Str(SumSecondTerm);
}

std::string MultipleQuestion::Text() const {
    return "La somme de" + Addition() + " donne-t-elle pour résultat un multiple de" + Str(table) +
           " ?\rCliquez sur OUI ou NON pour répondre.";
}

std::string MultipleQuestion::AfterOui() const {
    if (SumIsMultiple) return "Vous avez raison.\r" + kEnterAnswers;
    return "C'est faux !" + Addition() + " =" + Str(Sum()) + " qui n'est pas un multiple de" + Str(table) +
           " !" + kContinueLine;
}

std::string MultipleQuestion::AfterNon() const {
    if (!SumIsMultiple) {
        return "Vous avez raison !" + Addition() + " =" + Str(Sum()) + " qui n'est pas un multiple de" +
               Str(table) + " !" + kContinueLine;
    }
    return "Perdu !" + Addition() + " =" + Str(Sum()) + " =" + Str(Sum() / table) + " X" + Str(table) +
           " qui est donc bien un multiple de" + Str(table) + " !" + kContinueLine;
}

std::string MultipleQuestion::ProductLine() const {
    return "X" + Str(table) + " =" + Addition() + " =";
}

std::string MultipleQuestion::ProductCorrection(bool right) const {
    if (right) return "Bravo ! Les 2 opérations sont justes !" + kContinueLine;
    return "Erreur !" + Str(Sum() / table) + " X" + Str(table) + " =" + Addition() + " =" + Str(Sum()) +
           kContinueLine;
}

MultiplePanel::MultiplePanel(Form& form, SharedState& shared) : Panel(shared), ui{form} {
    ui.oui.on_click = [this] { oui_Click(); };
    ui.non.on_click = [this] { non_Click(); };
    ui.fleche2.on_change = [this] { fleche2_Change(); };
    ui.fleche3.on_change = [this] { fleche3_Change(); };
    ui.chiffre2.on_click = ui.chiffre3.on_click = [this] { chiffre2_Click(); };
    ui.encore_deux.on_click = [this] { NewMultipleQuestion(); };
}

void MultiplePanel::NewMultipleQuestion() {
    const SilentArrows silent(sounds());
    ui.fleche2.SetValue(0);
    ui.fleche3.SetValue(0);
    SetAllVisible(true, {&ui.oui, &ui.non});
    SetAllVisible(false,
                  {&ui.chiffre2, &ui.operation2, &ui.fleche2, &ui.fleche3, &ui.chiffre3, &ui.encore_deux});
    question_ = MultipleQuestion::Draw(shared().random, table());
    ui.enonce2.SetCaption(question_.Text());
}

void MultiplePanel::oui_Click() {
    SetAllVisible(false, {&ui.oui, &ui.non});
    if (question_.SumIsMultiple) {
        AskForProduct();
        return;
    }
    SoundAndCount(false);
    ui.enonce2.SetCaption(question_.AfterOui());
    CountExercise();
    ui.encore_deux.Show();
}

void MultiplePanel::AskForProduct() {
    sounds().PlayVictorySound();
    ui.enonce2.SetCaption(question_.AfterOui());
    ui.chiffre2.SetCaption(kUnanswered);
    ui.chiffre3.SetCaption(kUnanswered);
    ui.operation2.SetCaption(question_.ProductLine());
    SetAllVisible(true, {&ui.chiffre2, &ui.operation2, &ui.fleche2, &ui.fleche3});
    ui.chiffre3.SetLeft(ui.operation2.box().right() + 4);
    ui.fleche3.SetLeft(ui.operation2.box().right());
    ui.chiffre3.Show();
}

void MultiplePanel::non_Click() {
    CountExercise();
    SetAllVisible(false, {&ui.oui, &ui.non});
    SoundAndCount(!question_.SumIsMultiple);
    ui.enonce2.SetCaption(question_.AfterNon());
    ui.encore_deux.Show();
}

void MultiplePanel::fleche2_Change() {
    ShowNumber(ui.fleche2, ui.chiffre2);
}

void MultiplePanel::fleche3_Change() {
    ShowNumber(ui.fleche3, ui.chiffre3);
}

void MultiplePanel::chiffre2_Click() {
    if (ui.encore_deux.visible()) return;
    if (ui.chiffre2.caption() == kUnanswered || ui.chiffre3.caption() == kUnanswered) return;
    CountExercise();
    SetAllVisible(false, {&ui.fleche2, &ui.fleche3});
    ui.encore_deux.Show();
    const bool right = question_.IsRightProduct(Val(ui.chiffre2.caption()), Val(ui.chiffre3.caption()));
    if (right) {
        CountAndSound(right);
    } else {
        SoundAndCount(right);
    }
    ui.enonce2.SetCaption(question_.ProductCorrection(right));
}
