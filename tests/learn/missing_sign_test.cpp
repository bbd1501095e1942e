#include "support/exercise.h"

namespace {

Exercise MissingSign(Screens& screens) {
    const auto& ui = screens.apprendre.missing_sign.ui;
    Exercise exercise{screens.apprendre.form, 3, ui.enonce4, ui.fleche5, ui.enonce4, ui.encore_quatre, {}};
    const struct {
        int table;
        Draws draws;
        std::string first;
        int sign;
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
    const std::string signs = "+-X";
    for (const auto& c : cases) {
        const auto line = [&c](char sign) { return "|" + c.first + "|" + sign + "|" + c.rest; };
        const std::string asked =
            "Entrez le signe grâce aux flèches puis cliquez sur ce signe pour la correction." + line('?') +
            "|^0";
        const std::string solution =
            c.first + " " + signs.substr(static_cast<std::size_t>(c.sign), 1) + " " + c.rest + kGoOn;
        for (int chosen = 0; chosen < 3; ++chosen) {
            const bool right = chosen == c.sign;
            const std::string end = (right ? "Gagné ! " : "Perdu ! ") + solution +
                                    line(signs[static_cast<std::size_t>(chosen)]) + "|Continuer";
            exercise.ways.push_back(
                {c.draws, asked, {{ui.fleche5, chosen}, {ui.signe, end}}, right, "", "ac+", c.table});
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(MissingSign, ExerciseTest, testing::Values(MissingSign));

}  // namespace
