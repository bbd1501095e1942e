#include "support/exercise.h"

namespace {

Exercise LetterCode(Screens& screens) {
    const auto& ui = screens.apprendre.letter_code.ui;
    Exercise exercise{screens.apprendre.form, 2, ui.enonce3, ui.fleche4, ui.enonce3, ui.encore_trois, {}};
    const struct {
        int table;
        int drawn;
        const char* letter;
        bool right;
        std::string message;
    } cases[] = {
        {7, 4, "E", true, "Bravo ! E = 5 donc E X 7 = 5 X 7 = 35"},
        {7, 4, "D", false, "Faux ! E = 5 donc E X 7 = 5 X 7 = 35"},
        {7, 0, "A", true, "Bravo ! A = 1 donc A X 7 = 1 X 7 = 7"},
        {12, 25, "Z", true, "Bravo ! Z = 26 donc Z X 12 = 26 X 12 = 312"},
    };
    for (const auto& c : cases) {
        const std::string line =
            "|X " + std::to_string(c.table) + " =" + c.message.substr(c.message.rfind(' '));
        const std::string asked =
            "Sachant que A=1, B=2, C=3 ... Y=25, Z=26,\rentrez votre réponse grâce aux flèches puis cliquez "
            "sur cette réponse pour la correction.|A" +
            line + "|^65";
        const Deed end(ui.chiffre4, c.message + kGoOn + "|" + c.letter + line + "|Continuer");
        exercise.ways.push_back(
            {{{26, c.drawn}}, asked, {{ui.fleche4, *c.letter}, end}, c.right, "", "ahc+", c.table});
        // The first letter is an answer as it stands.
        if (c.drawn == 0)
            exercise.ways.push_back({{{26, c.drawn}}, asked, {end}, c.right, "", "ahc+", c.table});
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(LetterCode, ExerciseTest, testing::Values(LetterCode));

}  // namespace
