#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase LetterCode(Screens& screens) {
    const auto& ui = screens.apprendre.letter_code.ui;
    ExerciseCase exercise{screens.apprendre.form, 2, ui.enonce3, ui.fleche4, ui.enonce3, ui.encore_trois, {}};
    const struct {
        int table, number;
        char letter, given;
    } cases[] = {{7, 5, 'E', 'E'}, {7, 5, 'E', 'D'}, {7, 1, 'A', 'A'}, {12, 26, 'Z', 'Z'}};
    for (const auto& [table, number, letter, given] : cases) {
        const std::string asked =
            "Sachant que A=1, B=2, C=3 ... Y=25, Z=26,\rentrez votre réponse grâce aux flèches puis cliquez "
            "sur cette réponse pour la correction.|A|X {} = {}|^65";
        const std::string told = "{} ! {} = {} donc {} X {} = {} X {} = {}{}|{}|X {} = {}|Continuer";
        const int product = table * number;
        const bool right = given == letter;
        const std::string l(1, letter);
        const Deed end(ui.chiffre4, Put(told, {right ? "Bravo" : "Faux", l, number, l, table, number, table,
                                               product, kGoOn, std::string(1, given), table, product}));
        std::vector<Deed> deeds{{ui.fleche4, given}, end};
        for (int i = 0; i < (number == 1 ? 2 : 1); ++i) {  // the first letter is an answer as it stands
            exercise.Add({{26, number - 1}}, Put(asked, {table, product}), deeds, right, "", "ahc+", table);
            deeds = {end};
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(LetterCode, ExerciseTest, testing::Values(LetterCode));

}  // namespace

}  // namespace onze
