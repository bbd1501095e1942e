#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase FactorPair(Screens& screens) {
    const auto& ui = screens.exercices.factor_pair.ui;
    ExerciseCase exercise{screens.exercices.form, 2, ui.enonce3, ui.flech4, ui.texte2, ui.encor_trois, {}};
    exercise.check = [&ui] {
        if (!ui.chiffre5.visible()) return;
        EXPECT_EQ(ui.chiffre5.box().left, ui.enonce3.box().right() + 3_px);
        EXPECT_EQ(ui.flech4.box().left, ui.chiffre5.box().left - 8_px);
    };
    const std::string no_divisor =
        " On peut trouver 28 dans les Tables de Multiplication par 4 et par 7 !\r 28 = 4 X 7 ! Cliquez sur "
        "Continuer pour un autre exercice.";
    const struct {
        Draws draws;
        int product, first;
        int second;  // 0: the first one is wrong
        std::string correction;
    } cases[] = {
        {{{10, 0}, {10, 5}}, 24, 3, 8, ""},
        {{{10, 0}, {10, 5}}, 24, 12, 2, ""},  // neither of those drawn
        {{{10, 0}, {10, 5}}, 24, 6, 8, " 24 = 6 X 4 !" + kGoOn},
        // The second factor is drawn again until it differs from the first.
        {{{10, 9}, {10, 9}, {10, 9}, {10, 8}}, 132, 11, 1, " 132 = 11 X 12 !" + kGoOn},
        {{{10, 1}, {10, 4}}, 28, 3, 0, no_divisor},
    };
    for (const auto& [draws, product, first, second, correction] : cases) {
        const bool right = correction.empty();
        const std::string question =
            Put("Dans quelle Table de Multiplication puis-je trouver {} ?|", {product});
        const std::string verdict = (right ? kBravo : "Erreur !" + correction) + "|Continuer";
        const std::string asked = question + "??|" + kEnterOnTwoLines + "|^3";
        const Deed enter(ui.flech3, first);
        if (second == 0) {
            const Deed end(ui.chiffre4, Put("{} {}|{}", {question, first, verdict}));
            exercise.Add(draws, asked, {enter, end}, right, "a+", "a");
            continue;
        }
        const std::string begun = Put(" {} =  {} X|", {product, first});
        const Deed go_on(ui.chiffre4, begun + "??|" + kNowEnter + "|^0");
        const Deed end(ui.chiffre5, Put("{} {}|{}", {begun, second, verdict}));
        exercise.Add(draws, asked, {enter, go_on, {ui.flech4, second}, end}, right, "aht+", "a");
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(FactorPair, ExerciseTest, testing::Values(FactorPair));

}  // namespace

}  // namespace onze
