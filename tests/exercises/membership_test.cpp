#include "support/exercise.h"

namespace {

Exercise Membership(Screens& screens) {
    const auto& ui = screens.exercices.membership.ui;
    Exercise exercise{screens.exercices.form, 0, ui.chiffre1, ui.flech1, ui.enonce1, ui.encor_un, {}};
    exercise.check = [&ui] { EXPECT_EQ(ui.lab.box().right(), ui.chiffre2.box().left); };
    const struct {
        Draws draws;
        std::string number, table;
        int factor;  // 0: not in the table
    } cases[] = {
        {{kReseed, {12, 3}, {11, 4}, {11, 4}}, " 24", " 6", 4},
        {{kReseed, {12, 3}, {11, 4}, {11, 3}}, " 24", " 5", 0},
        {{kReseed, {12, 11}, {11, 10}, {11, 10}}, " 144", " 12", 12},
        {{kReseed, {12, 11}, {11, 0}, {11, 6}}, " 24", " 8", 3},  // by chance
        {{kReseed, {12, 0}, {11, 0}, {11, 1}}, " 2", " 3", 0},
        {{kReseed, {12, 0}, {11, 0}, {11, 0}}, " 2", " 2", 1},
    };
    for (const auto& c : cases) {
        const std::string question = c.number + "|est-il un résultat de la Table de" + c.table + " ?|";
        const auto answer = [&](const std::vector<Deed>& deeds, bool right, const char* before_exercises,
                                const char* before_verdict) {
            exercise.ways.push_back({c.draws, question + "OUI|NON|Cliquez sur OUI ou NON pour répondre.",
                                     deeds, right, before_exercises, before_verdict});
        };
        if (c.factor == 0) {
            const std::string no_member =
                c.number + " ne fait pas partie de la Table de" + c.table + " !" + kGoOn + "|Continuer";
            answer({{ui.oui, question + "Erreur !" + no_member}}, false, "ahtc+", "a");
            answer({{ui.non, question + "C'est juste !" + no_member}}, true, "", "ahtc+");
            continue;
        }
        const std::string solution =
            c.number + " = " + std::to_string(c.factor) + " X" + c.table + " !" + kGoOn;
        answer({{ui.non, question + "Erreur !" + solution + "|Continuer"}}, false, "", "ahtc+");
        const auto row = [&](const std::string& factor) {
            return question + c.number + " =|" + factor + "| X" + c.table + "|";
        };
        for (const bool right : {true, false}) {
            const int factor = right ? c.factor : c.factor + 1;
            const std::string end =
                row(" " + std::to_string(factor)) + (right ? kBravo : "Faux !" + solution) + "|Continuer";
            answer({{ui.oui, row("??") + kNowEnter + "|^0"}, {ui.flech1, factor}, {ui.chiffre2, end}}, right,
                   "ahtc+", "a");
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(Membership, ExerciseTest, testing::Values(Membership));

}  // namespace
