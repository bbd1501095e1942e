#include "forms/reading.h"

#include "support/pupil.h"

namespace onze {

namespace {

Names Read(const Form& page) {
    Names read;
    for (const ReadControl& item : ReadPage(page))
        read.push_back(item.name + (item.value.empty() ? "" : " [" + item.value + "]"));
    return read;
}

TEST(Reading, SignsAreSaidAsWords) {
    EXPECT_EQ(InWords(" 7 X 8 ="), "7 fois 8 égale");
    EXPECT_EQ(InWords("Erreur ! 12 - 5 = 7 !\rContinuez + vite."),
              "Erreur ! 12 moins 5 égale 7 ! Continuez plus vite.");
    EXPECT_EQ(InWords("Sachant que DO=3, RE=4 ..."), "Sachant que DO égale 3, RE égale 4 ...");
    EXPECT_EQ(InWords("Bravo ! X = 24 donc X X 7 = 24 X 7"),
              "Bravo ! X égale 24 donc X fois 7 égale 24 fois 7");
    EXPECT_EQ(InWords("donne-t-elle -3 ?"), "donne-t-elle -3 ?");
}

TEST(Reading, APageIsReadFromTheTopWithEachAnswerInItsLine) {
    Pupil pupil;
    pupil.OpenExercises();
    const Names exercises = Read(pupil.screens.exercices.form);
    EXPECT_EQ(exercises.at(0), "Réponse : à trouver fois 4 égale 28 [à trouver]");
    EXPECT_EQ(exercises.at(1), "fois 4 égale 28");
    EXPECT_EQ(exercises.back(), "RETOUR");
    const auto holds = [&exercises](const char* text) { return std::ranges::count(exercises, text) == 1; };
    EXPECT_TRUE(holds("Réponse : 7 fois 8 égale à trouver [à trouver]"));
    EXPECT_TRUE(holds("Réponse : DO fois 12 égale 84 [DO]"));

    pupil.Click(pupil.screens.exercices.fin);
    pupil.Heard();
    pupil.ChooseTable(7);
    const Names table = Read(pupil.screens.apprendre.form);
    EXPECT_EQ(table.at(0), "Jouons avec la Table de 7");
    EXPECT_TRUE(table.at(1).starts_with("Table de 7 : 1 fois 7 égale 7 ; 2 fois 7 égale 14 ;"))
        << table.at(1);
    EXPECT_TRUE(table.at(1).ends_with("; 12 fois 7 égale 84"));
    Apprendre& page = pupil.screens.apprendre;
    pupil.Turn(page.letter_code.ui.fleche4, 'X');
    pupil.Turn(page.missing_sign.ui.fleche5, 2);
    const Names turned = Read(page.form);
    EXPECT_EQ(std::ranges::count_if(turned,
                                    [](const auto& item) { return item.starts_with("Réponse : X fois 7"); }),
              1);
    pupil.Click(pupil.screens.apprendre.retour);
    pupil.Click(pupil.screens.depart.pytha);
    const auto read = ReadPage(pupil.screens.pythagore.form);
    EXPECT_EQ(read.at(8).name, "8, dans la colonne");
    EXPECT_EQ(read.at(8).kind, ReadControl::Kind::kRowHeader);
    const auto grid = std::ranges::find(read, ReadControl::Kind::kTable, &ReadControl::kind);
    ASSERT_NE(grid, read.end());
    EXPECT_NE(grid->name.find("; rangée de 8 : 0, 8, 16, 24, 32, 40, 48, 56, 64, 72, 80 ;"),
              std::string::npos);
}

}  // namespace

}  // namespace onze
