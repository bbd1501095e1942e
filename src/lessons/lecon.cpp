#include "lessons/lecon.h"

#include "forms/look.h"

namespace onze {

namespace {

constexpr Color kDarkRed{192, 0, 0};
constexpr Color kGreen{0, 128, 0};

constexpr Font kLarge{9.75_pt, false};
constexpr Font kSmall{8.25_pt, false};

// A text may be kept off what reaches into its box: another box, a line, the page's edge.
LabelStyle Note(const Font& font, Color color, const Margins& overhang = {}) {
    return {.font = font, .color = color, .overhang = overhang};
}

// The worked example stands just behind the end of l10.
const LabelStyle kBeforeL9{.font = kSmall, .color = kInk, .last_line_limit = 162_px};
// Its digits are as large, as bold and as far apart as those that the picture goes on with.
const LabelStyle kWorkedExample{.font = {9.5_pt, true}, .color = kInk, .align = Align::kRight};

constexpr auto kRepeatedSum =
    "Une multiplication est une opération qui s'emploie pour calculer plus rapidement une addition dans "
    "laquelle on répète plusieurs fois un même nombre. Exemple : 7 + 7 + 7 + 7 = 4 X 7 = 28";
constexpr auto kWords =
    "On appelle PRODUIT le résultat d'une multiplication. Le premier nombre de la multiplication est le "
    "MULTIPLICANDE, le second est le MULTIPLICATEUR.";
constexpr auto kOrder =
    "Le PRODUIT de plusieurs nombres reste le même quand on change l'ordre des nombres dans la "
    "multiplication. Exemple : 5 X 8 = 8 X 5 = 40";
constexpr auto kOneAndZero =
    "Quand on multiplie un nombre par 1 le produit est toujours égal à ce nombre. Quand on multiplie un "
    "nombre par 0, le produit est toujours égal à 0. Donc les tables de multiplication les plus faciles à "
    "apprendre sont celles de 0 et de 1 !";
constexpr auto kMultiples =
    "Les MULTIPLES d'un nombre se trouvent dans la TABLE de MULTIPLICATION de ce nombre. Si un nombre est "
    "MULTIPLE d'un autre nombre, il est divisible par ce nombre. 56 est MULTIPLE de 8 car 56 : 8 = 7 et "
    "7 X 8 = 56";
constexpr auto kTimesTen =
    "Pour MULTIPLIER un nombre par 10, il suffit d'ajouter un 0 à la droite de ce nombre --> 4 X 10 = 40";
constexpr auto kDigitTimesEleven =
    "Si l'on doit MULTIPLIER un chiffre (de 1 à 9) par 11, il suffit d'ajouter ce même chiffre à sa droite : "
    "6 X 11 = 66";
constexpr auto kTwoDigitsTimesEleven =
    "Si l'on doit MULTIPLIER un nombre (de 10 à 99) par 11, on additionne les 2 chiffres formant ce nombre "
    "et on place le résultat entre ces chiffres (on reporte une éventuelle retenue sur le premier chiffre) : "
    "26 X 11 --> 2 + 6 = 8 que l'on place entre le 2 et le 6  --> 286.  Autre exemple avec une retenue : "
    "57 X 11 --> 5 + 7 = 12, on place le 2 entre le 5 et le 7 et on ajoute 1 (la retenue) à 5 --> 627.";
constexpr auto kLongMultiplication =
    "Lorsque l'on doit calculer une MULTIPLICATION, il faut penser à placer le plus petit nombre au "
    "MULTIPLICATEUR et à bien aligner les chiffres. Exemple : 57 X 342 -->";

}  // namespace

// clang-format off
Leçon::Leçon(Stage& stage, SharedState& shared, Form& depart)
    : form(stage),
      Line1{ form, { 111_px, 258_px }, { 373_px, 257_px }, 2_px, kBlue },
      Line2{ form, { 306_px, 146_px }, { 584_px, 146_px }, 2_px, kRed },
      Line3{ form, { 369_px, 314_px }, { 369_px, 381_px }, 2_px, kPurple },
      Line4{ form, { 145_px, 446_px }, { 452_px, 446_px }, 2_px, kDarkRed },
      Line5{ form, {  67_px, 148_px }, { 198_px, 148_px }, 2_px, kGreen },
      //              left    top     width   height
      l1    { form, {  47_px, 157_px, 243_px,  96_px }, kRepeatedSum,          Note(kLarge, kDarkRed, {0, 0, -28_px, 0}) },
      l2    { form, { 306_px,  72_px, 272_px,  64_px }, kWords,                Note(kLarge, kBlue) },
      l3    { form, { 271_px, 157_px, 344_px,  48_px }, kOrder,                Note(kLarge, kGreen, {-4_px, 0, 0, 0}) },
      l4    { form, {   9_px,  61_px, 184_px,  78_px }, kOneAndZero,           Note(kSmall, kInk) },
      l5    { form, {  81_px, 264_px, 295_px,  52_px }, kMultiples,            Note(kSmall, kInk, {0, 0, -13_px, 0}) },
      l6    { form, { 501_px, 232_px, 141_px,  59_px }, kTimesTen,             Note(kSmall, kInk, {0, 0, -8_px, 0}) },
      l7    { form, {  11_px, 456_px, 515_px,  13_px }, kDigitTimesEleven,     Note(kSmall, kInk) },
      l8    { form, {  58_px, 386_px, 475_px,  55_px }, kTwoDigitsTimesEleven, Note(kSmall, kDarkRed) },
      l9    { form, { 550_px, 351_px,  30_px,  33_px }, "",                    kWorkedExample },
      l10   { form, { 382_px, 311_px, 236_px,  52_px }, kLongMultiplication,   kBeforeL9 },
      retour{ form, { 552_px, 460_px,  76_px,  17_px }, "RETOUR",              kButton } {
    // clang-format on
    form.SetBack(retour);
    retour.on_click = [this, &shared, &depart] { ReturnToStart(shared.sounds, depart, form); };
}

void Leçon::Prepare() {
    l9.SetCaption("342\rX  57");
}

}  // namespace onze
