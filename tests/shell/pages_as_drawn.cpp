#include <gtest/gtest.h>

#include <fstream>

#include "support/pupil.h"
#include "support/writing_canvas.h"

namespace {

// Every text, place, size and colour of a page is written down in tests/design. Where a page is changed on
// purpose, what is painted now takes that file's place.
void ExpectAsDrawn(const std::string& name, const Form& page) {
    WritingCanvas canvas;
    page.Paint(canvas, {0, 0, kPageWidth, kPageHeight});
    std::ostringstream drawn;
    drawn << std::ifstream(DESIGN_DIR + name + ".txt").rdbuf();
    if (canvas.out.str() == drawn.str()) return;
    std::ofstream(name + ".txt") << canvas.out.str();
    ADD_FAILURE() << "what is painted now stands in " << name << ".txt, in the folder of this run";
}

TEST(Design, EveryPageIsPaintedAsItWasDrawn) {
    Pupil pupil;
    Screens& screens = pupil.screens;
    screens.bilan.Fill();
    ExpectAsDrawn("depart", screens.depart.form);
    ExpectAsDrawn("apprendre", screens.apprendre.form);
    ExpectAsDrawn("lecon", screens.leçon.form);
    ExpectAsDrawn("pythagore", screens.pythagore.form);
    ExpectAsDrawn("exercices", screens.exercices.form);
    ExpectAsDrawn("bilan", screens.bilan.form);
    // The second steps, and the numbers above the bars that cross on their product.
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

}  // namespace
