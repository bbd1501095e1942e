#include "exercises/membership.h"

#include "support/number_text.h"

namespace onze {

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

MembershipPanel::MembershipPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form}, exercise_(shared.sounds, tally, ui.enonce1, ui.encor_un, {&ui.factor}), shared_(shared) {
    ui.oui.on_click = [this] { oui_Click(); };
    ui.non.on_click = [this] { non_Click(); };
    exercise_.CorrectAt({&ui.chiffre2}, {&ui.factor}, [this] { chiffre2_Click(); });
    ui.encor_un.on_click = [this] { NewMembershipExercise(); };
}

void MembershipPanel::NewMembershipExercise() {
    const SilentArrows silent(shared_.sounds);
    ui.factor.Rewind();
    ui.factor.Close();
    SetAllVisible(false, {&ui.lab, &ui.lab2, &ui.chiffre2, &ui.encor_un});
    SetAllVisible(true, {&ui.oui, &ui.non});
    question_ = MembershipQuestion::Draw(shared_.random);
    ui.chiffre1.SetCaption(Str(question_.number));
    ui.probleme1.SetCaption(question_.Text());
    ui.probleme1.SetLeft(ui.chiffre1.box().right() + 3_px);
    ui.enonce1.SetCaption("Cliquez sur OUI ou NON pour répondre.");
    shared_.MembershipAnswer = question_.IsMember() ? 1 : 0;
}

void MembershipPanel::oui_Click() {
    using enum Step;
    SetAllVisible(false, {&ui.oui, &ui.non});
    if (shared_.MembershipAnswer == 1) {
        AskForFactor();
    } else {
        exercise_.GiveVerdict(false, question_.AfterOui(),
                              {kCountVerdict, kPlay, kTell, kOffer, kCountExercise});
    }
}

void MembershipPanel::AskForFactor() {
    shared_.sounds.PlayVictorySound();
    ui.enonce1.SetCaption(question_.AfterOui());
    ui.lab.SetCaption(question_.BeforeFactor());
    ui.lab2.SetCaption(question_.BehindFactor());
    ui.factor.Begin();
    SetAllVisible(true, {&ui.lab, &ui.lab2, &ui.chiffre2});
}

void MembershipPanel::non_Click() {
    using enum Step;
    exercise_.CountExercise();
    SetAllVisible(false, {&ui.oui, &ui.non});
    exercise_.GiveVerdict(shared_.MembershipAnswer == 0, question_.AfterNon(),
                          {kOffer, kPlay, kTell, kCountVerdict});
}

void MembershipPanel::chiffre2_Click() {
    using enum Step;
    const bool right = question_.IsRight(*ui.factor.entered());
    exercise_.GiveVerdict(right, question_.Correction(right),
                          {kClose, kCountVerdict, kPlay, kTell, kOffer, kCountExercise});
}

}  // namespace onze
