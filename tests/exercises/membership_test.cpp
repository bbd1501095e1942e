#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase Membership(Screens& screens) {
    const auto& ui = screens.exercices.membership.ui;
    ExerciseCase exercise{screens.exercices.form, 0, ui.chiffre1, ui.flech1, ui.enonce1, ui.encor_un, {}};
    exercise.check = [&ui] { EXPECT_EQ(ui.lab.box().right(), ui.chiffre2.box().left); };
    const struct {
        Draws draws;
        int number, table, factor;  // 0: not in the table
    } cases[] = {
        {{kReseed, {12, 3}, {11, 4}, {11, 4}}, 24, 6, 4},
        {{kReseed, {12, 3}, {11, 4}, {11, 3}}, 24, 5, 0},
        {{kReseed, {12, 11}, {11, 10}, {11, 10}}, 144, 12, 12},
        {{kReseed, {12, 11}, {11, 0}, {11, 6}}, 24, 8, 3},  // by chance
        {{kReseed, {12, 0}, {11, 0}, {11, 1}}, 2, 3, 0},
        {{kReseed, {12, 0}, {11, 0}, {11, 0}}, 2, 2, 1},
    };
    for (const auto& [draws, number, table, factor] : cases) {
        const std::string question = Put(" {}|est-il un résultat de la Table de {} ?|", {number, table});
        const std::string asked = question + "OUI|NON|Cliquez sur OUI ou NON pour répondre.";
        if (factor == 0) {
            const std::string no_member =
                Put(" {} ne fait pas partie de la Table de {} !{}|Continuer", {number, table, kGoOn});
            exercise.Add(draws, asked, {{ui.oui, question + "Erreur !" + no_member}}, false, "ahtc+", "a");
            exercise.Add(draws, asked, {{ui.non, question + "C'est juste !" + no_member}}, true, "", "ahtc+");
            continue;
        }
        const std::string solution = Put(" {} = {} X {} !{}", {number, factor, table, kGoOn});
        exercise.Add(draws, asked, {{ui.non, question + "Erreur !" + solution + "|Continuer"}}, false, "",
                     "ahtc+");
        const std::string row = question + " {} =|{}| X {}|{}|{}";
        const Deed oui(ui.oui, Put(row, {number, "??", table, kNowEnter, "^0"}));
        for (const int given : {factor, factor + 1}) {
            const bool right = given == factor;
            const std::string message = right ? kBravo : "Faux !" + solution;
            const Deed end(ui.chiffre2, Put(row, {number, Put(" {}", {given}), table, message, "Continuer"}));
            exercise.Add(draws, asked, {oui, {ui.flech1, given}, end}, right, "ahtc+", "a");
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(Membership, ExerciseTest, testing::Values(Membership));

}  // namespace

}  // namespace onze
