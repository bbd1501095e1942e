#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase Multiple(Screens& screens) {
    const auto& ui = screens.apprendre.multiple.ui;
    ExerciseCase exercise{screens.apprendre.form, 1, ui.enonce2, ui.fleche3, ui.enonce2, ui.encore_deux, {}};
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
    for (const auto& [table, draws, terms, sum, factor] : cases) {
        const std::string ask =
            "La somme de{} donne-t-elle pour résultat un multiple de {} ?\rCliquez sur OUI ou NON pour "
            "répondre.|OUI|NON";
        const std::string asked = Put(ask, {terms, table});
        if (factor == 0) {
            const std::string no_multiple =
                Put("{} = {} qui n'est pas un multiple de {} !{}|Continuer", {terms, sum, table, kGoOn});
            exercise.Add(draws, asked, {{ui.oui, "C'est faux !" + no_multiple}}, false, "aht+", "ah", table);
            exercise.Add(draws, asked, {{ui.non, "Vous avez raison !" + no_multiple}}, true, "", "ah+",
                         table);
            continue;
        }
        const std::string no = "Perdu !{} = {} = {} X {} qui est donc bien un multiple de {} !{}|Continuer";
        exercise.Add(draws, asked, {{ui.non, Put(no, {terms, sum, factor, table, table, kGoOn})}}, false, "",
                     "ah+", table);
        const std::string line = Put("|X {} ={} =|", {table, terms});
        const Deed oui(ui.oui, Put("Vous avez raison.\r{}|??{}??|^0|^0", {kEnterBoth, line}));
        for (const auto& [one_more, multiple_more] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
            const int first = factor + one_more;
            const int second = sum + multiple_more * table;
            const bool right = first == factor && second == sum;
            const std::string message = right ? "Bravo ! Les 2 opérations sont justes !"
                                              : Put("Erreur ! {} X {} ={} = {}", {factor, table, terms, sum});
            const Deed end(one_more ? ui.chiffre2 : ui.chiffre3,
                           Put("{}{}|{}{}{}|Continuer", {message, kGoOn, first, line, second}));
            exercise.Add(draws, asked, {oui, {ui.fleche2, first}, {ui.fleche3, second}, end}, right, "",
                         right ? "ac+" : "ahc+", table);
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(Multiple, ExerciseTest, testing::Values(Multiple));

}  // namespace

}  // namespace onze
