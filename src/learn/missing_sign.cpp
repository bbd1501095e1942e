#include "learn/missing_sign.h"

#include <array>

#include "support/number_text.h"

namespace onze {

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

MissingSignPanel::MissingSignPanel(Form& form, SharedState& shared, Tally& tally)
    : ui{form}, exercise_(shared.sounds, tally, ui.enonce4, ui.encore_quatre, {&ui.sign}), shared_(shared) {
    exercise_.CorrectAt({&ui.signe}, {&ui.sign}, [this] { signe_Click(); });
    ui.encore_quatre.on_click = [this] { NewMissingSignQuestion(); };
}

void MissingSignPanel::NewMissingSignQuestion() {
    const SilentArrows silent(shared_.sounds);
    ui.enonce4.SetCaption(kChooseSign);
    ui.sign.Begin();
    ui.encore_quatre.Hide();
    question_ = MissingSignQuestion::Draw(shared_.random, shared_.CurrentTable);
    ui.chiffre5.SetCaption(question_.FirstOperand());
    ui.operation4.SetCaption(question_.Rest());
}

void MissingSignPanel::signe_Click() {
    using enum Step;
    const bool right = question_.IsRight(*ui.sign.entered());
    exercise_.GiveVerdict(right, question_.Correction(right),
                          {kCountExercise, kClose, kOffer, kCountVerdict, kPlay, kTell});
}

}  // namespace onze
