#include "support/exercise.h"

namespace {

Exercise MissingFactor(Screens& screens) {
    const auto& ui = screens.exercices.missing_factor.ui;
    Exercise exercise{screens.exercices.form, 3, ui.chiffre6, ui.flech5, ui.texte3, ui.encor_quatre, {}};
    const struct {
        Draws draws;
        std::string question;
        int answer;
    } cases[] = {{{{10, 5}, {10, 2}}, "X 4 = 28", 7},
                 {{{10, 9}, {10, 0}}, "X 2 = 22", 11},
                 {{{10, 0}, {10, 9}}, "X 11 = 22", 2}};
    for (const auto& [draws, question, answer] : cases) {
        for (const int given : {answer, answer + 1}) {
            const bool right = given == answer;
            const std::string message =
                right ? kBravo : "Erreur ! " + std::to_string(answer) + " " + question + " !" + kGoOn;
            const std::string end =
                " " + std::to_string(given) + "|" + question + "|" + message + "|Continuer";
            exercise.ways.push_back({draws,
                                     "??|" + question + "|" + kEnterOnTwoLines + "|^0",
                                     {{ui.flech5, given}, {ui.chiffre6, end}},
                                     right,
                                     "ht+",
                                     right ? "ht" : ""});
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(MissingFactor, ExerciseTest, testing::Values(MissingFactor));

}  // namespace
