#include "pythagoras/pythagore.h"

#include "forms/look.h"
#include "support/number_text.h"

namespace onze {

namespace {

constexpr int kNumbers = 11;
constexpr int kPitch = 19_px;
constexpr int kGridLeft = 205_px;
constexpr int kGridTop = 85_px;

constexpr Color kDisabled{104, 112, 136};
constexpr Color kYellow{255, 255, 0};

const LabelStyle kNumber{.font = {13.5_pt, true},
                         .color = kRed,
                         .disabled_color = kDisabled,
                         .ring = kRed,
                         .align = Align::kCenter,
                         .middle = true,
                         .overhang = 2_px};
LabelStyle Number(Role role) {
    LabelStyle style = kNumber;
    style.role = role;
    return style;
}

const LabelStyle kBar{.fill = kYellow, .frame = kBlack};
const LabelStyle kOperation{.font = {13.5_pt, true}, .color = kRed, .middle = true};

// The texts keep clear of the grid and of the page's edge, and begin one under the other.
LabelStyle Text(int inset, bool bold = false) {
    return {.font = {9.75_pt, bold}, .color = kInk, .overhang = {-inset, 0}};
}

Rect ColumnBox(int i) {
    constexpr int kTops[kNumbers] = {104, 123, 142, 162, 181, 200, 219, 238, 257, 276, 295};
    return {kGridLeft, kTops[i] * kTwipsPerPixel, 20_px, 20_px};
}

Rect RowBox(int j) {
    return {225_px + kPitch * j, kGridTop, 20_px, 20_px};
}

std::string ProductsInWords() {
    std::string words = "Table de Pythagore, de 0 à 10";
    for (int i = 0; i < kNumbers; ++i) {
        words += (i == 0 ? " : rangée de " : " ; rangée de ") + Digits(i) + " :";
        for (int j = 0; j < kNumbers; ++j) words += (j == 0 ? " " : ", ") + Digits(i * j);
    }
    return words;
}

constexpr auto kHistory =
    "C'est Pythagore qui a inventé la table de multiplication. Cette table permet de trouver rapidement et "
    "facilement tous les produits de deux nombres de 0 à 10 entre eux.";
constexpr auto kLife =
    "Pythagore était un philosophe et un mathématicien grec. Il vécut vers 570 - 490 avant Jésus Christ. Son "
    "autre grande découverte mathématique fut le Théorème de l'Hypoténuse.";
constexpr auto kTheorem =
    "Le carré de la longueur de l'hypoténuse d'un triangle rectangle est égal à la somme des carrés des "
    "longueurs des deux autres côtés.";
constexpr auto kHowTo =
    "Pour multiplier 2 nombres en utilisant cette table, il faut trouver l'un des nombres dans la première "
    "colonne (verticalement) et l'autre nombre dans la première rangée (horizontalement). Au croisement de "
    "la colonne et de la rangée se trouve le produit, c'est-à-dire le résultat de la multiplication des deux "
    "nombres entre eux.";
constexpr auto kExample =
    "Par exemple, pour multiplier 8 par 7, on sélectionne le 8 dans la colonne verticale, le 7 dans la "
    "rangée horizontale et à leur croisement on obtient le résultat cherché : 56.";
constexpr auto kInvitation = "Faites vos propres essais en cliquant sur les nombres en rouge dans la table";

}  // namespace

// clang-format off
Pythagore::Pythagore(Stage& stage, SharedState& shared, Form& depart)
    : form(stage),
      //         left    top     width   height
      cachehaut{ form, { 454_px,  85_px,  20_px,  20_px }, "", kBar },
      cachelong{ form, { 205_px,  60_px,  20_px,  20_px }, "", kBar },
      colonne(form, kNumbers, ColumnBox, "", Number(Role::kRowHeader)),
      rangee(form, kNumbers, RowBox, "", Number(Role::kColumnHeader)),
      produits { form, { 225_px, 105_px, 210_px, 210_px }, Role::kTable },
      operation{ form, { 184_px, 449_px, 238_px,  29_px }, "",          kOperation },
      pita1    { form, {   1_px, 180_px, 207_px, 107_px }, kHistory,    Text(7_px) },
      pita2    { form, { 445_px,  95_px, 184_px, 125_px }, kLife,       Text(0) },
      Label1   { form, { 438_px, 207_px, 197_px,  21_px }, "Théorème de l'Hypoténuse", Text(7_px, true) },
      pita3    { form, { 437_px, 224_px, 197_px,  88_px }, kTheorem,    Text(8_px) },
      pita4    { form, {   4_px, 323_px, 637_px,  48_px }, kHowTo,      Text(4_px) },
      Label3   { form, {   2_px, 386_px, 630_px,  32_px }, kExample,    Text(6_px) },
      Label2   { form, {   4_px, 433_px, 539_px,  20_px }, kInvitation, Text(4_px) },
      retour   { form, { 553_px, 460_px,  78_px,  16_px }, "RETOUR",    kButton },
      shared_(shared),
      depart_(depart),
      blinker_(stage) {
    // clang-format on
    ShowBars(false);
    for (int i = 0; i < kNumbers; ++i) {
        colonne[i].SetCaption(Digits(i));
        rangee[i].SetCaption(Digits(i));
        colonne[i].SetName("dans la colonne");
        rangee[i].SetName("dans la rangée");
        colonne[i].on_click = [this, i] { colonne_Click(i); };
        rangee[i].on_click = [this, i] { rangee_Click(i); };
    }
    produits.SetName(ProductsInWords());
    form.SetBack(retour);
    retour.on_click = [this] { retour_Click(); };
    blinker_.on_flash = [this] {
        PlayClick();
        ShowBars(true);
    };
    blinker_.on_dark = [this] { ShowBars(false); };
    blinker_.on_end = [this] {
        EnableNumbers();
        if (PythagoreStep == 0) UnmarkNumbers();
    };
}

void Pythagore::Prepare() {
    operation.SetCaption("8 que multiplie 7 = 56");
}

void Pythagore::colonne_Click(int i) {
    PlayClick();
    CountPair();
    cachehaut.SetHeight((i + 2) * kPitch);
    cachelong.SetTop((i + 1) * kPitch + kGridTop);
    Choose(i, colonne);
}

void Pythagore::rangee_Click(int j) {
    PlayClick();
    CountPair();
    cachehaut.SetLeft((j + 1) * kPitch + kGridLeft);
    cachelong.SetWidth((j + 2) * kPitch);
    Choose(j, rangee);
}

void Pythagore::retour_Click() {
    ReturnToStart(shared_.sounds, depart_, form);
    EnableNumbers();
    UnmarkNumbers();
    PythagoreStep = 0;
}

void Pythagore::PlayClick() {
    shared_.sounds.ClickSoundEnabled = 1;
    shared_.sounds.PlayClickSound();
}

void Pythagore::CountPair() {
    if (PythagoreStep == 1) shared_.counters.PythagoreSolves.Raise("PythagoreSolves");
}

void Pythagore::Choose(int number, ControlArray<Label>& side) {
    for (Label& label : side) label.SetEnabled(false);
    if (PythagoreStep == 0) UnmarkNumbers();
    side[number].SetMarked(true);
    if (PythagoreStep == 0) {
        PythagoreStep = 1;
        PythagoreFirst = number;
        operation.SetCaption(Digits(PythagoreFirst) + " que multiplie ?? = ??");
        return;
    }
    PythagoreStep = 0;
    PythagoreSecond = number;
    operation.SetCaption(Digits(PythagoreFirst) + " que multiplie " + Digits(PythagoreSecond) + " = " +
                         Digits(PythagoreFirst * PythagoreSecond));
    blinker_.Begin();
}

// A blink that ends opens all numbers too, even when a new pair has been begun by then: its second number may
// then come from either side.
void Pythagore::EnableNumbers() {
    for (int i = 0; i < kNumbers; ++i) {
        colonne[i].SetEnabled(true);
        rangee[i].SetEnabled(true);
    }
}

void Pythagore::UnmarkNumbers() {
    for (int i = 0; i < kNumbers; ++i) {
        colonne[i].SetMarked(false);
        rangee[i].SetMarked(false);
    }
}

void Pythagore::ShowBars(bool visible) {
    cachehaut.SetVisible(visible);
    cachelong.SetVisible(visible);
}

}  // namespace onze
