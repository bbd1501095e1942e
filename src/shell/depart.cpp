#include "shell/depart.h"

#include <array>

#include "forms/look.h"
#include "services/texts.h"
#include "shell/screens.h"
#include "support/capital.h"
#include "support/number_text.h"

namespace onze {

namespace {

constexpr int kClockIntervalMs = 1000;

constexpr const char* kChoose = "Cliquez sur une table";
constexpr const char* kOpenReport = "Consulter le Bilan d'Utilisation";
constexpr const char* kLessons = "La MULTIPLICATION ? Qu'est-ce donc ?";
constexpr const char* kExercises = "Envie de vous exercer un peu ?";

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
LabelStyle PromptLine() {
    LabelStyle style = Caption(kRed);
    style.font.height = 13.0_pt;
    style.overhang = {46_px, 27_px, 42_px, 2_px};
    return style;
}

}  // namespace

// clang-format off
Depart::Depart(Stage& stage, const Calendar& calendar, SharedState& shared, Screens& screens)
    : form(stage),
      chiffre(form, 11, NumberZone),
      //                         left  top   width height
      pytha            { form, {   60, 1275, 1725, 2520 } },
      apprendre_leçon  { form, { 7935, 1815, 1320, 2370 } },
      exos             { form, { 3495, 4620, 4785, 2325 } },
      Image_bilan      { form, {  480, 4365, 3000, 1080 } },
      label_table      { form, { 4830, 2355, 1530,  195 }, "Cliquez sur une Table", PromptLine() },
      Label1           { form, {   30, 1065, 1680,  195 }, "Table de Pythagore",    Caption(kPurple) },
      Label2           { form, { 7815, 4215, 1485,  240 }, "Quelques rappels",      Caption(kBrown) },
      Label3           { form, { 4605, 6975, 1965,  195 }, "Un peu d'entraînement", Caption(kPurple) },
      bilan_utilisation{ form, {  900, 5790, 1485,  195 }, "Bilan d'utilisation",   Caption(kBrown) },
      heure            { form, {  735, 4680, 2325,  255 }, "",                      Caption(kBlue) },
      dates            { form, {  600, 4905, 2625,  255 }, "",                      Caption(kBlack) },
      fin              { form, { 8280, 6900, 1170,  240 }, "SORTIE",                kButton },
      timer(stage),
      calendar_(calendar),
      shared_(shared),
      screens_(screens) {
    // clang-format on
    WireClicks();
    WirePrompts();
    timer.on_timer = [this] { timer_Timer(); };
}

void Depart::Prepare() {
    HoverState = Prompt::kChoose;
    dates.SetCaption(WithCapital(calendar_.LongDate()));
    timer_Timer();
    timer.Start(kClockIntervalMs);
}

void Depart::WireClicks() {
    for (int i = 0; i < chiffre.size(); ++i) chiffre[i].on_click = [this, i] { chiffre_Click(i); };
    apprendre_leçon.on_click = Label2.on_click = [this] { apprendre_leçon_Click(); };
    pytha.on_click = Label1.on_click = [this] { pytha_Click(); };
    exos.on_click = Label3.on_click = [this] { exos_Click(); };
    Image_bilan.on_click = [this] { Image_bilan_Click(); };
    bilan_utilisation.on_click = dates.on_click = heure.on_click = [this] { bilan_utilisation_Click(); };
}

void Depart::WirePrompts() {
    const auto says = [this](Prompt state, const std::string& text) {
        return [this, state, text] { Hover(state, text); };
    };
    for (int i = 0; i < chiffre.size(); ++i) {
        const std::string prompt = kPlayWithTable + Str(i + kFirstTable);
        chiffre[i].SetName(prompt);
        chiffre[i].on_move = says(Prompt::kTable, prompt);
    }
    const struct {
        Control& control;
        Prompt state;
        const char* prompt;  // also the name of what has no text
    } prompts[] = {
        {label_table, Prompt::kChoose, kChoose},
        {Label1, Prompt::kChoose, kChoose},
        {pytha, Prompt::kPythagoras, "Consulter la Table de Pythagore"},
        {dates, Prompt::kReportPicture, kOpenReport},
        {heure, Prompt::kReportPicture, kOpenReport},
        {Image_bilan, Prompt::kReportPicture, kOpenReport},
        {fin, Prompt::kQuit, "Voulez-vous déjà nous quitter ?"},
        {apprendre_leçon, Prompt::kLessonsOrExercises, kLessons},
        {Label2, Prompt::kLessonsOrExercises, kLessons},
        {exos, Prompt::kLessonsOrExercises, kExercises},
        {Label3, Prompt::kLessonsOrExercises, kExercises},
        {bilan_utilisation, Prompt::kReportLabel, kOpenReport},
    };
    for (const auto& [control, state, prompt] : prompts) {
        control.SetName(prompt);
        control.on_move = says(state, prompt);
    }
    form.on_move = says(Prompt::kChoose, kChoose);
}

void Depart::Hover(Prompt state, const std::string& text) {
    if (state == HoverState) return;
    HoverState = state;
    label_table.SetCaption(text);
}

void Depart::chiffre_Click(int i) {
    const int table = i + kFirstTable;
    shared_.sounds.PlayNavigationSound("5");
    screens_.apprendre.Prepare(table);
    shared_.CurrentTable = table;
    Raise(shared_.counters.TableConsultations, table, "TableConsultations");
    Open(screens_.apprendre.form);
}

void Depart::apprendre_leçon_Click() {
    shared_.sounds.PlayNavigationSound("5");
    shared_.counters.LessonConsultations.Raise("LessonConsultations");
    Open(screens_.leçon.form);
}

void Depart::pytha_Click() {
    shared_.sounds.PlayNavigationSound("5");
    shared_.counters.PythagoreConsultations.Raise("PythagoreConsultations");
    screens_.pythagore.Prepare();
    Open(screens_.pythagore.form);
}

void Depart::exos_Click() {
    shared_.sounds.PlayNavigationSound("5");
    Open(screens_.exercices.form);
}

void Depart::Image_bilan_Click() {
    shared_.sounds.PlayNavigationSound("5");
    bilan_utilisation_Click();
}

void Depart::bilan_utilisation_Click() {
    screens_.bilan.Prepare();
    Open(screens_.bilan.form);
}

void Depart::timer_Timer() {
    heure.SetCaption(calendar_.TimeOfDay());
}

void Depart::Open(Form& screen) {
    screen.Show();
    form.Hide();
}

}  // namespace onze
