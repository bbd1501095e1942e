#include "learn/multiple.h"

#include "support/number_text.h"

namespace onze {

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

MultiplePanel::MultiplePanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form},
      exercise_(shared.sounds, tally, ui.enonce2, ui.encore_deux, {&ui.factor, &ui.sum}),
      shared_(shared) {
    ui.oui.on_click = [this] { oui_Click(); };
    ui.non.on_click = [this] { non_Click(); };
    exercise_.CorrectAt({&ui.chiffre2, &ui.chiffre3}, {&ui.factor, &ui.sum}, [this] { chiffre2_Click(); });
    ui.encore_deux.on_click = [this] { NewMultipleQuestion(); };
}

void MultiplePanel::NewMultipleQuestion() {
    const SilentArrows silent(shared_.sounds);
    for (Answer* answer : {&ui.factor, &ui.sum}) {
        answer->Rewind();
        answer->Close();
    }
    SetAllVisible(true, {&ui.oui, &ui.non});
    SetAllVisible(false, {&ui.chiffre2, &ui.operation2, &ui.chiffre3, &ui.encore_deux});
    question_ = MultipleQuestion::Draw(shared_.random, shared_.CurrentTable);
    ui.enonce2.SetCaption(question_.Text());
}

void MultiplePanel::oui_Click() {
    using enum Step;
    SetAllVisible(false, {&ui.oui, &ui.non});
    if (question_.SumIsMultiple) {
        AskForProduct();
    } else {
        exercise_.GiveVerdict(false, question_.AfterOui(),
                              {kPlay, kCountVerdict, kTell, kCountExercise, kOffer});
    }
}

void MultiplePanel::AskForProduct() {
    shared_.sounds.PlayVictorySound();
    ui.enonce2.SetCaption(question_.AfterOui());
    ui.operation2.SetCaption(question_.ProductLine());
    ui.factor.Begin();
    SetAllVisible(true, {&ui.chiffre2, &ui.operation2});
    ui.chiffre3.SetLeft(ui.operation2.box().right() + 4);
    ui.fleche3.SetLeft(ui.operation2.box().right());
    ui.sum.Begin();
    ui.chiffre3.Show();
}

void MultiplePanel::non_Click() {
    using enum Step;
    const bool right = !question_.SumIsMultiple;
    exercise_.CountExercise();
    SetAllVisible(false, {&ui.oui, &ui.non});
    exercise_.GiveVerdict(right, question_.AfterNon(), {kPlay, kCountVerdict, kTell, kOffer});
}

void MultiplePanel::chiffre2_Click() {
    using enum Step;
    const bool right = question_.IsRightProduct(*ui.factor.entered(), *ui.sum.entered());
    const std::string text = question_.ProductCorrection(right);
    if (right) {
        exercise_.GiveVerdict(right, text, {kCountExercise, kClose, kOffer, kCountVerdict, kPlay, kTell});
    } else {
        exercise_.GiveVerdict(right, text, {kCountExercise, kClose, kOffer, kPlay, kCountVerdict, kTell});
    }
}

}  // namespace onze
