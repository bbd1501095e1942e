#include "exercises/exercices.h"

#include "exercises/looks.h"

namespace onze {

namespace {

constexpr Color kRule{120, 150, 205};

// The button reaches nearly to the edge of the page.
LabelStyle ReturnButton() {
    LabelStyle style = kButton;
    style.outset = 1_px;
    return style;
}

}  // namespace

// The rules: below the two areas at the top, below the band of the third exercise, below that of the first;
// between left and right at the top and at the bottom; above "RETOUR".
Exercices::Exercices(Stage& stage, SharedState& shared, Form& depart)
    : tally_(shared.counters),
      form(stage),
      Line1(form, {180, 2370}, {9420, 2370}, 1_px, kRule),
      Line2(form, {180, 3795}, {9420, 3795}, 1_px, kRule),
      Line3(form, {180, 5010}, {9420, 5010}, 1_px, kRule),
      Line4(form, {4800, 180}, {4800, 2265}, 1_px, kRule),
      Line5(form, {4800, 5085}, {4800, 7020}, 1_px, kRule),
      Line8(form, {4875, 6765}, {9420, 6765}, 1_px, kRule),
      membership(form, shared, tally_),
      product(form, shared, tally_),
      factor_pair(form, shared, tally_),
      missing_factor(form, shared, tally_),
      factored_sum(form, shared, tally_),
      note_factor(form, shared, tally_),
      fin(form, {8280, 6870, 1155, 285}, "RETOUR", ReturnButton()),
      random_(shared.random) {
    form.on_activate = [this] { Form_Activate(); };
    form.SetBack(fin);
    form.SetReadingAreas({{0, 0, 4800, 2340},
                          {4800, 0, 4800, 2340},
                          {0, 2340, 9600, 1440},
                          {0, 3780, 9600, 1230},
                          {0, 5010, 4800, 2190},
                          {4800, 5010, 4800, 1755}});
    fin.on_click = [this, &shared, &depart] { ReturnToStart(shared.sounds, depart, form); };
}

void Exercices::Form_Activate() {
    random_.Randomize();
    membership.NewMembershipExercise();
    product.NewProductExercise();
    factor_pair.NewFactorPairExercise();
    missing_factor.NewMissingFactorExercise();
    factored_sum.NewFactoredSumExercise();
    note_factor.NewNoteFactorExercise();
}

}  // namespace onze
