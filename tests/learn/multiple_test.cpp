#include "support/exercise.h"

namespace {

Exercise Multiple(Screens& screens) {
    const auto& ui = screens.apprendre.multiple.ui;
    Exercise exercise{screens.apprendre.form, 1, ui.enonce2, ui.fleche3, ui.enonce2, ui.encore_deux, {}};
    exercise.check = [&ui] {
        if (!ui.chiffre3.visible()) return;
        EXPECT_EQ(ui.chiffre3.box().left, ui.operation2.box().right() + 4);
        EXPECT_EQ(ui.fleche3.box().left, ui.operation2.box().right());
    };
    const struct {
        int table;
        Draws draws;
        std::string terms;
        int sum;
        int factor;  // 0: no multiple
    } cases[] = {
        {7, {kReseed, {2, 0}, {20, 0}, {14, 1}}, " 14 + 21", 35, 5},
        // The first term is drawn again until it is the smaller.
        {2, {kReseed, {2, 0}, {20, 0}, {14, 2}, {3, 2}, {3, 0}}, " 2 + 6", 8, 4},
        {12, {kReseed, {2, 0}, {20, 19}, {14, 13}}, " 168 + 264", 432, 36},
        {12, {kReseed, {2, 0}, {20, 10}, {14, 12}, {13, 11}}, " 144 + 156", 300, 25},
        // The second term is drawn again until the sum is no multiple.
        {7, {kReseed, {2, 1}, {50, 9}, {50, 3}, {50, 4}}, " 10 + 5", 15, 0},
        {2, {kReseed, {2, 1}, {50, 49}, {50, 49}, {50, 1}, {50, 0}}, " 50 + 1", 51, 0},
    };
    for (const auto& c : cases) {
        const std::string table = " " + std::to_string(c.table);
        const std::string sum = c.terms + " = " + std::to_string(c.sum);
        const std::string asked = "La somme de" + c.terms + " donne-t-elle pour résultat un multiple de" +
                                  table + " ?\rCliquez sur OUI ou NON pour répondre.|OUI|NON";
        const auto answer = [&](const std::vector<Deed>& deeds, bool right, const char* before_exercises,
                                const char* before_verdict) {
            exercise.ways.push_back(
                {c.draws, asked, deeds, right, before_exercises, before_verdict, c.table});
        };
        if (c.factor == 0) {
            const std::string no_multiple =
                sum + " qui n'est pas un multiple de" + table + " !" + kGoOn + "|Continuer";
            answer({{ui.oui, "C'est faux !" + no_multiple}}, false, "aht+", "ah");
            answer({{ui.non, "Vous avez raison !" + no_multiple}}, true, "", "ah+");
            continue;
        }
        const std::string product = " " + std::to_string(c.factor) + " X" + table;
        answer({{ui.non, "Perdu !" + sum + " =" + product + " qui est donc bien un multiple de" + table +
                             " !" + kGoOn + "|Continuer"}},
               false, "", "ah+");
        const std::string line = "|X" + table + " =" + c.terms + " =|";
        const Deed oui(ui.oui, "Vous avez raison.\r" + kEnterBoth + "|??" + line + "??|^0|^0");
        const auto enter = [&](int factor, int result, const Label& clicked) {
            const bool right = factor == c.factor && result == c.sum;
            const std::string message =
                right ? "Bravo ! Les 2 opérations sont justes !" : "Erreur !" + product + " =" + sum;
            const std::string end =
                message + kGoOn + "|" + std::to_string(factor) + line + std::to_string(result) + "|Continuer";
            answer({oui, {ui.fleche2, factor}, {ui.fleche3, result}, {clicked, end}}, right, "",
                   right ? "ac+" : "ahc+");
        };
        enter(c.factor, c.sum, ui.chiffre3);
        enter(c.factor - 1, c.sum, ui.chiffre2);
        enter(c.factor, c.sum + c.table, ui.chiffre3);
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(Multiple, ExerciseTest, testing::Values(Multiple));

}  // namespace
