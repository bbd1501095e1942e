#include "stats/bilan.h"

#include "forms/look.h"
#include "support/number_text.h"

namespace onze {

namespace {

const LabelStyle kHeading{
    .font = {8.25_pt, true}, .color = kInk, .align = Align::kCenter, .overhang = {4_px, 0}};
const LabelStyle kSentence{.font = {8.25_pt, true}, .color = kInk};
// The longest numbers keep off the rules between the columns.
const LabelStyle kValue{
    .font = {13.5_pt, true}, .color = kInk, .align = Align::kCenter, .overhang = {-5_px, 0}};

// The boxes of a column's values, from the table of 2 down.
auto Column(int left) {
    return [left](int i) -> Rect {
        constexpr int kTops[kStoredTables] = {192, 219, 246, 272, 298, 323, 349, 375, 401, 427, 454};
        return {left, kTops[i] * kTwipsPerPixel, 63_px, 28_px};
    };
}

}  // namespace

// clang-format off
Bilan::Bilan(Stage& stage, SharedState& shared, Form& depart)
    : form(stage),
      // The headings are as wide as it takes to stand in the middle of what they head, and may pass that.
      //              left    top     width   height
      Label1 { form, { 190_px, 174_px,  56_px,  14_px }, "Tables",    kHeading },
      Label2 { form, { 247_px, 174_px,  61_px,  14_px }, "Consultée", kHeading },
      Label3 { form, { 311_px, 174_px,  53_px,  14_px }, "Exercices", kHeading },
      Label4 { form, { 401_px, 155_px,  80_px,  14_px }, "Réponses",  kSentence },
      Label5 { form, { 378_px, 174_px,  41_px,  14_px }, "Justes",    kHeading },
      Label6 { form, { 433_px, 174_px,  47_px,  14_px }, "Fausses",   kHeading },
      consult(form, kStoredTables, Column(246_px), "", kValue),
      exos(form, kStoredTables, Column(306_px), "", kValue),
      juste(form, kStoredTables, Column(367_px), "", kValue),
      faux(form, kStoredTables, Column(425_px), "", kValue),
      Label7 { form, { 494_px, 275_px, 142_px,  14_px }, "Entraînement",     kHeading },
      Label8 { form, { 498_px, 307_px,  70_px,  14_px }, "Exercices",        kSentence },
      Label9 { form, { 498_px, 332_px,  54_px,  28_px }, "Réponses justes",  kHeading },
      Label10{ form, { 498_px, 367_px,  54_px,  28_px }, "Réponses fausses", kHeading },
      n_exo  { form, { 570_px, 302_px,  63_px,  28_px }, "", kValue },
      n_exoj { form, { 570_px, 334_px,  63_px,  28_px }, "", kValue },
      n_exof { form, { 570_px, 366_px,  63_px,  28_px }, "", kValue },
      pour_lecons   { form, { 213_px,  74_px, 416_px,  17_px }, "hjkh",  kSentence },
      pour_pythagore{ form, { 149_px, 108_px, 481_px,  33_px }, "fjgfj", kSentence },
      retour        { form, { 552_px, 459_px,  76_px,  17_px }, "RETOUR", kButton },
      shared_(shared) {
    // clang-format on
    form.SetBack(retour);
    retour.on_click = [this, &depart] { ReturnToStart(shared_.sounds, depart, form); };
}

void Bilan::Prepare() {
    const Counters& counters = shared_.counters;
    for (int i = 0; i < kStoredTables; ++i) {
        const auto table = static_cast<std::size_t>(i);
        juste[i].SetCaption(Digits(counters.TableRight[table]));
        faux[i].SetCaption(Digits(counters.TableWrong[table]));
        exos[i].SetCaption(Digits(counters.TableExercises[table]));
        consult[i].SetCaption(Digits(counters.TableConsultations[table]));
    }
    n_exo.SetCaption(Digits(counters.PuzzleCount));
    n_exoj.SetCaption(Digits(counters.PuzzleRight));
    n_exof.SetCaption(Digits(counters.PuzzleWrong));
    shared_.NoteName = counters.PythagoreSolves.value() > 1 ? " essais " : " essai ";
    pour_pythagore.SetCaption("--->  La Table de Pythagore a été consultée" +
                              Str(counters.PythagoreConsultations.value()) + " fois.\rIl y a eu" +
                              Str(counters.PythagoreSolves.value()) + shared_.NoteName +
                              "de résolution de multiplication grâce à la Table de Pythagore.");
    pour_lecons.SetCaption("--->  La page des rappels sur la multiplication a été consultée" +
                           Str(counters.LessonConsultations.value()) + " fois.");
}

}  // namespace onze
