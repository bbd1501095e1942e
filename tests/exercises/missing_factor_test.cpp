#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase MissingFactor(Screens& screens) {
    const auto& ui = screens.exercices.missing_factor.ui;
    ExerciseCase exercise{screens.exercices.form, 3, ui.chiffre6, ui.flech5, ui.texte3, ui.encor_quatre, {}};
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
            const std::string message = right ? kBravo : Put("Erreur ! {} {} !{}", {answer, question, kGoOn});
            const Deed end(ui.chiffre6, Put(" {}|{}|{}|Continuer", {given, question, message}));
            exercise.Add(draws, Put("??|{}|{}|^0", {question, kEnterOnTwoLines}), {{ui.flech5, given}, end},
                         right, "ht+", right ? "ht" : "");
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(MissingFactor, ExerciseTest, testing::Values(MissingFactor));

}  // namespace

}  // namespace onze
