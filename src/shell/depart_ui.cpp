#include "shell/depart_ui.h"

#include <array>

#include "forms/look.h"

namespace {

constexpr Color kBrown{192, 64, 0};

constexpr std::array<Rect, 11> kNumberZones{{{1800, 900, 510, 855},
                                             {2400, 1320, 510, 855},
                                             {3000, 1740, 510, 855},
                                             {3600, 2160, 510, 855},
                                             {4200, 2580, 510, 855},
                                             {4800, 3000, 510, 855},
                                             {5400, 3420, 510, 855},
                                             {6000, 3000, 510, 855},
                                             {6600, 2580, 915, 855},
                                             {7050, 1650, 885, 855},
                                             {8040, 900, 930, 855}}};

Rect NumberZone(int i) {
    return kNumberZones.at(static_cast<std::size_t>(i));
}

LabelStyle Caption(Color color) {
    return {.font = {8.25_pt, true}, .color = color, .align = Align::kCenter, .middle = true};
}

// The prompt line's box holds its first text; longer ones, in two lines, fill the sign around it.
LabelStyle Prompt() {
    LabelStyle style = Caption(kRed);
    style.font.height = 13.0_pt;
    style.overhang = {46_px, 27_px, 42_px, 2_px};
    return style;
}

}  // namespace

// clang-format off
DepartUi::DepartUi(Stage& stage)
    : form(stage),
      chiffre(form, 11, NumberZone),
      //                         left  top   width height
      pytha            { form, {   60, 1275, 1725, 2520 } },
      apprendre_leçon  { form, { 7935, 1815, 1320, 2370 } },
      exos             { form, { 3495, 4620, 4785, 2325 } },
      Image_bilan      { form, {  480, 4365, 3000, 1080 } },
      label_table      { form, { 4830, 2355, 1530,  195 }, "Cliquez sur une Table", Prompt() },
      Label1           { form, {   30, 1065, 1680,  195 }, "Table de Pythagore",    Caption(kPurple) },
      Label2           { form, { 7815, 4215, 1485,  240 }, "Quelques rappels",      Caption(kBrown) },
      Label3           { form, { 4605, 6975, 1965,  195 }, "Un peu d'entraînement", Caption(kPurple) },
      bilan_utilisation{ form, {  900, 5790, 1485,  195 }, "Bilan d'utilisation",   Caption(kBrown) },
      heure            { form, {  735, 4680, 2325,  255 }, "",                      Caption(kBlue) },
      dates            { form, {  600, 4905, 2625,  255 }, "",                      Caption(kBlack) },
      fin              { form, { 8280, 6900, 1170,  240 }, "SORTIE",                kButton },
      timer(stage) {}
// clang-format on
