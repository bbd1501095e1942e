#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/pupil.h"
#include "support/writing_canvas.h"

namespace onze {

namespace {

// What is painted is written down in tests/design. Where it is changed on purpose, what is painted now takes
// the place of its file there.
void ExpectAsDrawn(const std::string& name, const WritingCanvas& canvas) {
    std::ostringstream drawn;
    drawn << std::ifstream(DESIGN_DIR + name + ".txt").rdbuf();
    if (canvas.out.str() == drawn.str()) return;
    const auto file = std::filesystem::absolute(name + ".txt");
    std::ofstream(file) << canvas.out.str();
    ADD_FAILURE() << "what is painted now stands in " << file;
}

void ExpectAsDrawn(const std::string& name, const Form& page) {
    WritingCanvas canvas;
    page.Paint(canvas, {0, 0, kPageWidth, kPageHeight});
    ExpectAsDrawn(name, canvas);
}

// Each page before anything is done there, and where exercises have second steps, or bars cross under the
// numbers.
TEST(Design, Pages) {
    Pupil pupil;
    Screens& screens = pupil.screens;
    ExpectAsDrawn("depart", screens.depart.form);
    ExpectAsDrawn("apprendre", screens.apprendre.form);
    ExpectAsDrawn("lecon", screens.leçon.form);
    ExpectAsDrawn("pythagore", screens.pythagore.form);
    ExpectAsDrawn("exercices", screens.exercices.form);
    pupil.ChooseTable(7);
    pupil.Click(screens.apprendre.multiple.ui.oui);
    ExpectAsDrawn("apprendre-2", screens.apprendre.form);
    pupil.Click(screens.apprendre.retour);
    pupil.Heard();
    pupil.OpenExercises();
    pupil.Click(screens.exercices.membership.ui.oui);
    pupil.Step(screens.exercices.factor_pair.ui.flech3, 1);
    pupil.Click(screens.exercices.factor_pair.ui.chiffre4);
    ExpectAsDrawn("exercices-2", screens.exercices.form);
    pupil.Click(screens.exercices.fin);
    pupil.Click(screens.depart.pytha);
    pupil.Click(screens.pythagore.colonne[8]);
    pupil.Click(screens.pythagore.rangee[7]);
    ExpectAsDrawn("pythagore-2", screens.pythagore.form);
}

TEST(Design, ReportWithEveryCounterInItsPlace) {
    Counters counters;
    for (std::int16_t i = 0; i < kStoredTables; ++i) {
        const auto at = static_cast<std::size_t>(i);
        counters.TableConsultations[at] = static_cast<std::int16_t>(100 + i);
        counters.TableExercises[at] = static_cast<std::int16_t>(20000 + i);
        counters.TableRight[at] = static_cast<std::int16_t>(300 + i);
        counters.TableWrong[at] = static_cast<std::int16_t>(-32768 + i);
    }
    counters.PuzzleCount = 32767;
    counters.PuzzleRight = -3;
    counters.PuzzleWrong = 12;
    Pupil pupil(counters);
    pupil.Click(pupil.screens.depart.dates);
    ExpectAsDrawn("bilan", pupil.screens.bilan.form);
}

// The pictures of every table, and what is left of them on the way back.
TEST(Design, Tables) {
    Pupil pupil;
    const Apprendre& screen = pupil.screens.apprendre;
    WritingCanvas canvas;
    const auto draw = [&] {
        for (const Control* control : screen.form.controls()) {
            if (dynamic_cast<const Image*>(control)) control->Paint(canvas);
        }
    };
    for (int table = 12; table >= 2; --table) {
        pupil.ChooseTable(table);
        canvas.out << screen.titre.caption() << '\n';
        draw();
        pupil.Click(screen.retour);
        pupil.Heard();
    }
    canvas.out << "RETOUR\n";
    draw();
    ExpectAsDrawn("tables", canvas);
}

// All that reacts to a click, for those who click on the real programs.
TEST(Design, Places) {
    Pupil pupil;
    const Screens& screens = pupil.screens;
    WritingCanvas canvas;
    for (const auto& [name, page] : {std::pair{"depart ", &screens.depart.form},
                                     {"apprendre ", &screens.apprendre.form},
                                     {"lecon ", &screens.leçon.form},
                                     {"pythagore ", &screens.pythagore.form},
                                     {"exercices ", &screens.exercices.form},
                                     {"bilan ", &screens.bilan.form}}) {
        for (const Control* control : page->controls()) {
            const bool arrows = dynamic_cast<const UpDown*>(control);
            if (!arrows && !control->on_click) continue;
            const auto& [left, top, width, height] = control->box();
            canvas.out << name << (arrows ? "arrows " : "click ") << left << ' ' << top << ' ' << width << ' '
                       << height << '\n';
        }
    }
    ExpectAsDrawn("places", canvas);
}

}  // namespace

}  // namespace onze
