#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase Product(Screens& screens) {
    const auto& ui = screens.exercices.product.ui;
    ExerciseCase exercise{screens.exercices.form, 1, ui.enonce2, ui.flech2, ui.texte, ui.encor_deux, {}};
    const struct {
        Draws draws;
        std::string question;
        int answer;
    } cases[] = {{{{11, 5}, {11, 6}}, " 7 X 8 =", 56},
                 {{{11, 10}, {11, 10}}, " 12 X 12 =", 144},
                 {{{11, 0}, {11, 0}}, " 2 X 2 =", 4}};
    for (const auto& [draws, question, answer] : cases) {
        for (const int given : {answer, answer - 4}) {
            const bool right = given == answer;
            const std::string message = right ? "Bravo, vous avez trouvé la bonne solution !"
                                              : Put("Erreur ! {} {} !", {question, answer});
            const Deed end(ui.chiffre3, Put("{}| {}|{}|Continuer", {question, given, message + kGoOn}));
            exercise.Add(draws, question + "|??|" + kEnter + "|^0", {{ui.flech2, given}, end}, right, "ahtc+",
                         "ac");
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(Product, ExerciseTest, testing::Values(Product));

}  // namespace

}  // namespace onze
