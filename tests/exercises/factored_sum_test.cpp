#include "support/exercise.h"

namespace {

Exercise FactoredSum(Screens& screens) {
    const auto& ui = screens.exercices.factored_sum.ui;
    Exercise exercise{screens.exercices.form, 4, ui.enonce5, ui.flech7, ui.texte4, ui.encor_cinq, {}};
    const struct {
        Draws draws;
        std::string question;
        int factor, cofactor, result;
    } cases[] = {
        {{kReseed, kReseed, {2, 0}, {9, 3}, {12, 3}, {12, 5}}, " 24 + 36 = 6 X", 6, 10, 60},
        // A sum may have equal terms; both terms of a difference are drawn again until they differ.
        {{kReseed, kReseed, {2, 0}, {9, 8}, {12, 11}, {12, 11}}, " 132 + 132 = 11 X", 11, 24, 264},
        {{kReseed, kReseed, {2, 1}, {9, 0}, {12, 9}, {12, 2}}, " 30 - 9 = 3 X", 3, 7, 21},
        {{kReseed, kReseed, {2, 1}, {9, 1}, {12, 5}, {12, 5}, {12, 8}, {12, 8}, {12, 0}, {12, 11}},
         " 48 - 4 = 4 X",
         4,
         11,
         44},
    };
    for (const auto& c : cases) {
        const auto row = [&c](const std::string& cofactor, const std::string& result) {
            return c.question + "|" + cofactor + "| =|" + result + "|";
        };
        const auto answer = [&](int cofactor, int result, const Label& clicked) {
            const bool right = cofactor == c.cofactor && result == c.result;
            const std::string message = right ? kBravo
                                              : "Erreur ! " + c.question + " " + std::to_string(c.cofactor) +
                                                    " = " + std::to_string(c.result) + " !" + kGoOn;
            const std::string end =
                row(" " + std::to_string(cofactor), " " + std::to_string(result)) + message + "|Continuer";
            exercise.ways.push_back({c.draws,
                                     row("??", "??") + kEnterBoth + "|^0|^0",
                                     {{ui.flech7, result}, {ui.flech6, cofactor}, {clicked, end}},
                                     right,
                                     "ahtc+",
                                     "ac"});
        };
        answer(c.cofactor, c.result, ui.chiffre7);
        answer(c.cofactor + 1, c.result, ui.chiffre8);
        answer(c.cofactor, c.result + c.factor, ui.chiffre8);
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(FactoredSum, ExerciseTest, testing::Values(FactoredSum));

}  // namespace
