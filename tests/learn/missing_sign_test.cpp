#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase MissingSign(Screens& screens) {
    const auto& ui = screens.apprendre.missing_sign.ui;
    ExerciseCase exercise{screens.apprendre.form, 3, ui.enonce4, ui.fleche5, ui.enonce4,
                          ui.encore_quatre,       {}};
    const struct {
        int table;
        Draws draws;
        std::string first;
        std::size_t sign;
        std::string rest;
    } cases[] = {
        {7, {kReseed, {12, 4}, {12, 2}, {3, 0}}, " 35", 0, " 21 = 8 X 7 = 56"},
        {7, {kReseed, {12, 4}, {12, 2}, {3, 1}}, " 35", 1, " 21 = 2 X 7 = 14"},
        {12, {kReseed, {12, 11}, {12, 10}, {3, 2}}, " 144", 2, " 132 = 1584 X 12 = 19008"},
        // Both are drawn again until the second is the smaller.
        {2,
         {kReseed, {12, 3}, {12, 3}, {12, 0}, {12, 5}, {12, 1}, {12, 0}, {3, 0}},
         " 4",
         0,
         " 2 = 3 X 2 = 6"},
    };
    const Names signs{"+", "-", "X"};
    for (const auto& [table, draws, first, sign, rest] : cases) {
        const std::string asked =
            "Entrez le signe grâce aux flèches puis cliquez sur ce signe pour la correction.|{}|?|{}|^0";
        for (std::size_t given = 0; given < 3; ++given) {
            const bool right = given == sign;
            const Deed end(ui.signe, Put("{} ! {} {} {}{}|{}|{}|{}|Continuer",
                                         {right ? "Gagné" : "Perdu", first, signs.at(sign), rest, kGoOn,
                                          first, signs.at(given), rest}));
            exercise.Add(draws, Put(asked, {first, rest}), {{ui.fleche5, static_cast<int>(given)}, end},
                         right, "", "ac+", table);
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(MissingSign, ExerciseTest, testing::Values(MissingSign));

}  // namespace

}  // namespace onze
