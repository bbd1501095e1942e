#include "exercises/exerciser.h"

namespace {

// What the exercises that ask for one answer have alike.
struct OneStep {
    const Label& question;
    const Label& answer;
    const Label& message;
    const Label& encor;
    const UpDown& arrow;
};

OneStep Product(const Exercices& screen) {
    const auto& ui = screen.product.ui;
    return {ui.enonce2, ui.chiffre3, ui.texte, ui.encor_deux, ui.flech2};
}

OneStep MissingFactor(const Exercices& screen) {
    const auto& ui = screen.missing_factor.ui;
    return {ui.enonce4, ui.chiffre6, ui.texte3, ui.encor_quatre, ui.flech5};
}

OneStep NoteFactor(const Exercices& screen) {
    const auto& ui = screen.note_factor.ui;
    return {ui.enonce7, ui.chiffre9, ui.texte5, ui.encor_six, ui.flech8};
}

TEST(OneStep, RightAndWrongAnswers) {
    struct Case {
        OneStep (*exercise)(const Exercices&);
        SixDraws draws;
        std::string question;
        int entered;
        std::string answer;
        std::string message;
    };
    const std::string right = "Bravo, vous avez trouvé la bonne solution !" + kGoOn;
    const std::vector<Case> cases{
        {Product, {.product = {{11, 5}, {11, 6}}}, " 7 X 8 =", 56, " 56", right},
        {Product, {.product = {{11, 5}, {11, 6}}}, " 7 X 8 =", 54, " 54", "Erreur !  7 X 8 = 56 !" + kGoOn},
        {Product, {.product = {{11, 10}, {11, 10}}}, " 12 X 12 =", 144, " 144", right},
        {Product, {.product = {{11, 0}, {11, 0}}}, " 2 X 2 =", 0, " 0", "Erreur !  2 X 2 = 4 !" + kGoOn},
        {MissingFactor, {.missing_factor = {{10, 5}, {10, 2}}}, "X 4 = 28", 7, " 7", kBravo},
        {MissingFactor, {.missing_factor = {{10, 9}, {10, 0}}}, "X 2 = 22", 11, " 11", kBravo},
        {MissingFactor,
         {.missing_factor = {{10, 0}, {10, 9}}},
         "X 11 = 22",
         12,
         " 12",
         "Erreur ! 2 X 11 = 22 !" + kGoOn},
        {NoteFactor,
         {.note_factor = {{7, 4}, {12, 11}}},
         "X 12 = 84",
         4,
         "SOL",
         "Bravo ! C'est SOL car SOL = 7 donc \r 7 X 12 = 84" + kGoOn},
        {NoteFactor,
         {.note_factor = {{7, 6}, {12, 0}}},
         "X 1 = 9",
         5,
         "LA",
         "Erreur ! C'est SI car SI = 9 donc \r 9 X 1 = 9" + kGoOn},
        {NoteFactor,
         {.note_factor = {{7, 0}, {12, 6}}},
         "X 7 = 21",
         1,
         "RE",
         "Erreur ! C'est DO car DO = 3 donc \r 3 X 7 = 21" + kGoOn},
    };
    for (const Case& c : cases) {
        Exerciser exerciser(c.draws);
        const OneStep exercise = c.exercise(exerciser.screen);
        EXPECT_EQ(exercise.question.caption(), c.question);
        exerciser.Enter(exercise.arrow, c.entered);
        EXPECT_EQ(exercise.answer.caption(), c.answer);
        exerciser.Finish(exercise.answer, exercise.message, c.message, exercise.encor, {&exercise.arrow});
    }
}

TEST(OneStep, FirstNoteIsAnAnswerAsItStands) {
    Exerciser exerciser({.note_factor = {{7, 0}, {12, 1}}});
    auto& ui = exerciser.screen.note_factor.ui;
    Names notes{ui.chiffre9.caption()};
    for (int i = 1; i < 7; ++i) {
        exerciser.Step(ui.flech8, 1);
        notes.push_back(ui.chiffre9.caption());
    }
    EXPECT_EQ(notes, (Names{"DO", "RE", "MI", "FA", "SOL", "LA", "SI"}));
    exerciser.Click(exerciser.screen.fin);
    exerciser.Open({.note_factor = {{7, 0}, {12, 1}}});
    exerciser.Finish(ui.chiffre9, ui.texte5, "Bravo ! C'est DO car DO = 3 donc \r 3 X 2 = 6" + kGoOn,
                     ui.encor_six, {&ui.flech8});
}

}  // namespace
