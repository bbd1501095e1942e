#include "exercises/membership.h"

#include "support/number_text.h"

MembershipQuestion MembershipQuestion::Draw(Random& random) {
    random.Randomize();
    const int first = random.Draw(12) + 1;
    const int second = random.Draw(11) + 2;
    const int table = random.Draw(11) + 2;
    return {second * first, table};
}

std::string MembershipQuestion::Text() const {
    return "est-il un résultat de la Table de" + Str(MembershipTable) + " ?";
}

std::string MembershipQuestion::NoMember() const {
    return Str(number) + " ne fait pas partie de la Table de" + Str(MembershipTable) + " !" + kContinueLine;
}

std::string MembershipQuestion::AfterOui() const {
    return IsMember() ? kRightGoOn : "Erreur !" + NoMember();
}

std::string MembershipQuestion::AfterNon() const {
    if (!IsMember()) return "C'est juste !" + NoMember();
    return "Erreur !" + Str(number) + " =" + Str(Factor()) + " X" + Str(MembershipTable) + " !" +
           kContinueLine;
}

std::string MembershipQuestion::BeforeFactor() const {
    return Str(number) + " =";
}

std::string MembershipQuestion::BehindFactor() const {
    return " X" + Str(MembershipTable);
}

std::string MembershipQuestion::Correction(bool right) const {
    if (right) return kSolved;
    return "Faux !" + BeforeFactor() + Str(Factor()) + BehindFactor() + " !" + kContinueLine;
}

MembershipPanel::MembershipPanel(Form& form, SharedState& shared) : ExercisePanel(shared), ui{form} {
    Link(ui.flech1, ui.chiffre2);
    ui.oui.on_click = [this] { oui_Click(); };
    ui.non.on_click = [this] { non_Click(); };
    ui.chiffre2.on_click = [this] { chiffre2_Click(); };
    ui.encor_un.on_click = [this] { NewMembershipExercise(); };
}

void MembershipPanel::NewMembershipExercise() {
    const SilentArrows silent(sounds());
    ui.flech1.SetValue(0);
    SetAllVisible(false, {&ui.lab, &ui.lab2, &ui.chiffre2, &ui.encor_un, &ui.flech1});
    SetAllVisible(true, {&ui.oui, &ui.non});
    question_ = MembershipQuestion::Draw(random());
    ui.chiffre1.SetCaption(Str(question_.number));
    ui.probleme1.SetCaption(question_.Text());
    ui.enonce1.SetCaption("Cliquez sur OUI ou NON pour répondre.");
    shared().MembershipAnswer = question_.IsMember() ? 1 : 0;
}

void MembershipPanel::oui_Click() {
    SetAllVisible(false, {&ui.oui, &ui.non});
    if (shared().MembershipAnswer == 1) {
        AskForFactor();
        return;
    }
    Tell(false, ui.enonce1, question_.AfterOui());
    ui.encor_un.Show();
    CountExercise();
}

void MembershipPanel::AskForFactor() {
    sounds().PlayVictorySound();
    ui.enonce1.SetCaption(question_.AfterOui());
    ui.lab.SetCaption(question_.BeforeFactor());
    ui.lab2.SetCaption(question_.BehindFactor());
    ui.chiffre2.SetCaption(kUnanswered);
    SetAllVisible(true, {&ui.lab, &ui.lab2, &ui.chiffre2, &ui.flech1});
}

void MembershipPanel::non_Click() {
    CountExercise();
    SetAllVisible(false, {&ui.oui, &ui.non});
    ui.encor_un.Show();
    const bool right = shared().MembershipAnswer == 0;
    sounds().PlayVerdictSound(right);
    ui.enonce1.SetCaption(question_.AfterNon());
    Count(right);
}

void MembershipPanel::chiffre2_Click() {
    if (!AnswerGuard(ui.chiffre2, ui.encor_un)) return;
    ui.flech1.Hide();
    const bool right = Val(ui.lab.caption()) == question_.MembershipTable * Val(ui.chiffre2.caption());
    Tell(right, ui.enonce1, question_.Correction(right));
    ui.encor_un.Show();
    CountExercise();
}
