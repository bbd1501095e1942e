#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase Factoring(Screens& screens) {
    const auto& ui = screens.apprendre.factoring.ui;
    ExerciseCase exercise{screens.apprendre.form, 0, ui.enonce, ui.fleche, ui.label_table1, ui.encore_un, {}};
    const struct {
        int table;
        Draws draws;
        std::string question;
        int answer;
        std::string product;
    } cases[] = {
        {6, {kReseed, {2, 0}, {6, 2}, {6, 3}}, " 18 + 24 =  6 X", 7, " 7 = 42"},
        {12, {kReseed, {2, 0}, {6, 5}, {6, 0}}, " 72 + 12 =  12 X", 7, " 7 = 84"},
        {7, {kReseed, {2, 1}, {12, 8}, {12, 3}}, " 63 - 28 =  7 X", 5, " 5 = 35"},
        {7, {kReseed, {2, 1}, {12, 0}, {12, 11}}, " 84 - 7 =  7 X", 11, " 11 = 77"},
        {2, {kReseed, {2, 1}, {12, 4}, {12, 4}}, " 10 - 10 =  2 X", 0, " 0 = 0"},
    };
    for (const auto& [table, draws, question, answer, product] : cases) {
        for (const int given : {answer, answer + 1}) {
            const bool right = given == answer;
            const std::string message =
                right ? "Gagné ! Vous avez trouvé le bon résultat !" : "Erreur ! " + question + product;
            const Deed end(ui.chiffre, Put("{}|{}|{}|Continuer", {question, given, message + kGoOn}));
            exercise.Add(draws, question + "|??|" + kEnter + "|^0", {{ui.fleche, given}, end}, right, "",
                         "ahc+", table);
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(Factoring, ExerciseTest, testing::Values(Factoring));

}  // namespace

}  // namespace onze
