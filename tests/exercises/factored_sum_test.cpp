#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase FactoredSum(Screens& screens) {
    const auto& ui = screens.exercices.factored_sum.ui;
    ExerciseCase exercise{screens.exercices.form, 4, ui.enonce5, ui.flech7, ui.texte4, ui.encor_cinq, {}};
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
    for (const auto& [draws, question, factor, cofactor, result] : cases) {
        const std::string row = question + "|{}| =|{}|{}|";
        for (const auto& [one_more, multiple_more] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
            const int first = cofactor + one_more;
            const int second = result + multiple_more * factor;
            const bool right = first == cofactor && second == result;
            const std::string message =
                right ? kBravo : Put("Erreur ! {} {} = {} !{}", {question, cofactor, result, kGoOn});
            const Deed end(right ? ui.chiffre7 : ui.chiffre8,
                           Put(row, {Put(" {}", {first}), Put(" {}", {second}), message}) + "Continuer");
            exercise.Add(draws, Put(row, {"??", "??", kEnterBoth}) + "^0|^0",
                         {{ui.flech7, second}, {ui.flech6, first}, end}, right, "ahtc+", "ac");
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(FactoredSum, ExerciseTest, testing::Values(FactoredSum));

}  // namespace

}  // namespace onze
