#include "learn/apprendre.h"

#include "learn/table_pictures.h"
#include "support/number_text.h"

namespace onze {

namespace {

constexpr Color kTitleRule{70, 110, 190};
constexpr Color kPanelRule{190, 200, 220};

const LabelStyle kTitle{
    .role = Role::kHeading, .font = {18.0_pt, true}, .color = kInk, .align = Align::kCenter, .middle = true};

// Rows 0 to 10 are small and evenly spaced; the last, for twelve times, is large.
constexpr int kLastRow = 11;

Rect NumberBox(int i) {
    if (i == kLastRow + 1) return {76_px, 402_px, 62_px, 57_px};
    const int row = i == 0 ? 0 : i - 1;
    return {76_px, 56_px + row * 31_px, 53_px, 25_px};
}

Rect ProductBox(int i) {
    const int row = i / 3;
    const int top = row == kLastRow ? 418_px : 56_px + row * 31_px;
    return {154_px + i % 3 * 17_px, top, 36_px, 25_px};
}

// The slate for those who do not see it.
std::string ProductsText(int table) {
    std::string text = "Table de" + Str(table) + " :";
    for (int i = 1; i <= kLastRow + 1; ++i)
        text += (i == 1 ? "" : " ;") + Str(i) + " X" + Str(table) + " =" + Str(i * table);
    return text;
}

}  // namespace

Apprendre::Apprendre(Stage& stage, SharedState& shared, PictureClip& anim, Form& depart)
    : tally_(shared),
      form(stage),
      titre(form, {120_px, 8_px, 400_px, 30_px}, "", kTitle),
      multiplicateur(form, 13, NumberBox),
      resultat(form, 36, ProductBox),
      Line1(form, {160_px, 39_px}, {480_px, 39_px}, 1_px, kTitleRule),
      Line2(form, {160_px, 42_px}, {480_px, 42_px}, 1_px, kTitleRule),
      Line3(form, {246_px, 82_px}, {622_px, 82_px}, 1_px, kPanelRule),
      Line4(form, {246_px, 199_px}, {622_px, 199_px}, 1_px, kPanelRule),
      Line5(form, {246_px, 299_px}, {622_px, 299_px}, 1_px, kPanelRule),
      Line6(form, {246_px, 394_px}, {622_px, 394_px}, 1_px, kPanelRule),
      Line7(form, {246_px, 465_px}, {530_px, 465_px}, 1_px, kPanelRule),
      factoring(form, shared, tally_),
      multiple(form, shared, tally_),
      letter_code(form, shared, tally_),
      missing_sign(form, shared, tally_),
      retour(form, {552_px, 459_px, 76_px, 17_px}, "RETOUR", kButton),
      sounds_(shared.sounds),
      anim_(anim),
      depart_(depart) {
    form.on_activate = [this] { Form_Activate(); };
    form.SetBack(retour);
    form.SetReadingAreas({{0, 0, 640_px, 44_px},  // the title, then the slate
                          {0, 44_px, 236_px, 436_px},
                          {236_px, 44_px, 404_px, 95_px},
                          {236_px, 139_px, 404_px, 122_px},
                          {236_px, 261_px, 404_px, 95_px},
                          {236_px, 356_px, 404_px, 95_px}});
    retour.on_click = [this] { retour_Click(); };
}

void Apprendre::Prepare(int table) {
    ShowTableNumber(anim_, *this, table);
    ShowTableProducts(anim_, *this, table);
    titre.SetCaption(kPlayWithTable + Str(table));
    multiplicateur[kLastRow + 1].SetName(ProductsText(table));
}

void Apprendre::Form_Activate() {
    multiple.StepByTable();
    factoring.NewFactoringQuestion();
    multiple.NewMultipleQuestion();
    letter_code.NewLetterCodeQuestion();
    missing_sign.NewMissingSignQuestion();
}

void Apprendre::retour_Click() {
    sounds_.ClickSoundEnabled = 0;
    sounds_.PlayNavigationSound("3");
    factoring.Leave();
    depart_.Show();
    form.Hide();
    for (Image& cell : resultat) cell.SetPicture(nullptr);
}

}  // namespace onze
