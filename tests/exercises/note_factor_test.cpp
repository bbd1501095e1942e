#include "support/exercise.h"

namespace onze {

namespace {

ExerciseCase NoteFactor(Screens& screens) {
    const auto& ui = screens.exercices.note_factor.ui;
    ExerciseCase exercise{screens.exercices.form, 5, ui.texte5, ui.flech8, ui.texte5, ui.encor_six, {}};
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
            "cette réponse pour la correction.|DO|{}|^0";
        const std::string told = "{} ! C'est {} car {} = {} donc \r {} {}{}|{}|{}|Continuer";
        for (const std::string& given : {note, std::string("RE"), std::string("DO")}) {
            const bool right = given == note;
            const Deed end(ui.chiffre9, Put(told, {right ? "Bravo" : "Erreur", note, note, factor, factor,
                                                   question, kGoOn, given, question}));
            std::vector<Deed> deeds{{ui.flech8, right ? factor - 3 : 1}, end};
            if (given == "DO") deeds = {end};  // the first note is an answer as it stands
            exercise.Add(draws, Put(asked, {question}), deeds, right, "ahtc+", right ? "ahtc" : "ac");
        }
    }
    return exercise;
}

INSTANTIATE_TEST_SUITE_P(NoteFactor, ExerciseTest, testing::Values(NoteFactor));

}  // namespace

}  // namespace onze
