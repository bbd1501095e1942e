#include "shell/depart.h"

#include "forms/platform.h"
#include "shell/table_pictures.h"
#include "support/capital.h"
#include "support/number_text.h"

namespace {

constexpr int kClockIntervalMs = 1000;
const std::string kPlayWithTable = "Jouons avec la Table de";
const std::string kOpenReport = "Consulter le Bilan d'Utilisation";

}  // namespace

Depart::Depart(Platform& platform, Screens& screens, SharedState& shared)
    : platform_(platform), screens_(screens), ui_(screens.depart), shared_(shared) {
    WireClicks();
    WireHover();
    ui_.timer.on_timer = [this] { timer_Timer(); };
}

void Depart::Prepare() {
    HoverState = Prompt::kChoose;
    ui_.dates.SetCaption(WithCapital(platform_.LongDate()));
    timer_Timer();
    ui_.timer.Start(kClockIntervalMs);
}

void Depart::WireClicks() {
    for (int i = 0; i < ui_.chiffre.size(); ++i) ui_.chiffre[i].on_click = [this, i] { chiffre_Click(i); };
    ui_.apprendre_leçon.on_click = ui_.Label2.on_click = [this] { apprendre_leçon_Click(); };
    ui_.pytha.on_click = ui_.Label1.on_click = [this] { pytha_Click(); };
    ui_.exos.on_click = ui_.Label3.on_click = [this] { exos_Click(); };
    ui_.Image_bilan.on_click = [this] { Image_bilan_Click(); };
    ui_.bilan_utilisation.on_click = ui_.dates.on_click =
        ui_.heure.on_click = [this] { bilan_utilisation_Click(); };
}

void Depart::WireHover() {
    for (int i = 0; i < ui_.chiffre.size(); ++i) {
        ui_.chiffre[i].on_move = [this, i] { Hover(Prompt::kTable, kPlayWithTable + Str(i + kFirstTable)); };
    }
    const auto says = [this](Prompt state, const std::string& text) {
        return [this, state, text] { Hover(state, text); };
    };
    ui_.form.on_move = ui_.label_table.on_move = ui_.Label1.on_move =
        says(Prompt::kChoose, "Cliquez sur une table");
    ui_.pytha.on_move = says(Prompt::kPythagoras, "Consulter la Table de Pythagore");
    ui_.dates.on_move = ui_.heure.on_move = ui_.Image_bilan.on_move =
        says(Prompt::kReportPicture, kOpenReport);
    ui_.fin.on_move = says(Prompt::kQuit, "Voulez-vous déjà nous quitter ?");
    ui_.apprendre_leçon.on_move = ui_.Label2.on_move =
        says(Prompt::kLessonsOrExercises, "La MULTIPLICATION ? Qu'est-ce donc ?");
    ui_.exos.on_move = ui_.Label3.on_move =
        says(Prompt::kLessonsOrExercises, "Envie de vous exercer un peu ?");
    ui_.bilan_utilisation.on_move = says(Prompt::kReportLabel, kOpenReport);
}

void Depart::Hover(Prompt state, const std::string& text) {
    if (state == HoverState) return;
    HoverState = state;
    ui_.label_table.SetCaption(text);
}

void Depart::chiffre_Click(int i) {
    const int table = i + kFirstTable;
    shared_.sounds.PlayNavigationSound("5");
    ShowTableNumber(screens_.divers.anim, screens_.apprendre, table);
    ShowTableProducts(screens_.divers.anim, screens_.apprendre, table);
    screens_.apprendre.titre.SetCaption(kPlayWithTable + Str(table));
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
    screens_.pythagore.operation.SetCaption("8 que multiplie 7 = 56");
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
    screens_.bilan.Fill();
    Open(screens_.bilan.form);
}

void Depart::timer_Timer() {
    ui_.heure.SetCaption(platform_.TimeOfDay());
}

void Depart::Open(Form& screen) {
    screen.Show();
    ui_.form.Hide();
}
