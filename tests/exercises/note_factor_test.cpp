#include "support/exercise.h"

namespace {

Exercise NoteFactor(Screens& screens) {
    const auto& ui = screens.exercices.note_factor.ui;
    Exercise exercise{screens.exercices.form, 5, ui.texte5, ui.flech8, ui.texte5, ui.encor_six, {}};
    const struct {
        Draws draws;
        std::string question;
        int factor;
        std::string note;
    } cases[] = {{{{7, 4}, {12, 11}}, "X 12 = 84", 7, "SOL"},
                 {{{7, 6}, {12, 0}}, "X 1 = 9", 9, "SI"},
                 {{{7, 0}, {12, 6}}, "X 7 = 21", 3, "DO"}};
    for (const auto& [draws, question, factor, note] : cases) {
        const std::string asked =
            "Sachant que DO=3, RE=4 ... LA=8, SI=9, entrez votre réponse grâce aux flèches puis cliquez sur "
            "cette réponse pour la correction.|DO|" +
            question + "|^0";
        const std::string text = "C'est " + note + " car " + note + " = " + std::to_string(factor) +
                                 " donc \r " + std::to_string(factor) + " " + question + kGoOn;
        const auto end = [&](bool right, const std::string& given) {
            return Deed(ui.chiffre9, (right ? "Bravo ! " : "Erreur ! ") + text + "|" + given + "|" +
                                         question + "|Continuer");
        };
        const auto answer = [&](const std::vector<Deed>& deeds, bool right) {
            exercise.ways.push_back({draws, asked, deeds, right, "ahtc+", right ? "ahtc" : "ac"});
        };
        answer({{ui.flech8, factor - 3}, end(true, note)}, true);
        answer({{ui.flech8, 1}, end(false, "RE")}, false);
        answer({end(factor == 3, "DO")}, factor == 3);  // the first note is an answer as it stands
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(NoteFactor, ExerciseTest, testing::Values(NoteFactor));

}  // namespace
