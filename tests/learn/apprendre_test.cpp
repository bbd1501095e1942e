#include "support/pupil.h"

namespace {

// The cell of the strip that an image shows, as "x,y,width,height"; empty without a picture.
std::string CellOf(const Image& image) {
    if (!image.picture()) return "";
    const auto& cell = static_cast<const HeadlessPicture&>(*image.picture());
    EXPECT_EQ(cell.source, "memory");
    return std::to_string(cell.x) + "," + std::to_string(cell.y) + "," + std::to_string(cell.width) + "," +
           std::to_string(cell.height);
}

Names Row(Apprendre& screen, int row) {
    return {CellOf(screen.resultat[3 * row]), CellOf(screen.resultat[3 * row + 1]),
            CellOf(screen.resultat[3 * row + 2])};
}

TEST(Apprendre, ShowsTheNumberOfTheTableSmallElevenTimesAndLargeOnce) {
    const struct {
        int table;
        const char *small, *large;
    } cases[] = {{2, "76,61,36,25", "71,1,34,57"},   {9, "335,61,36,25", "316,1,34,57"},
                 {10, "1,88,53,25", "351,1,61,57"},  {11, "55,88,36,25", "413,1,59,57"},
                 {12, "92,88,47,25", "473,1,62,57"}, {3, "113,61,36,25", "106,1,34,57"}};
    Pupil pupil;
    Apprendre& screen = pupil.screens.apprendre;
    for (const auto& [table, small, large] : cases) {
        pupil.ChooseTable(table);
        EXPECT_EQ(CellOf(screen.multiplicateur[0]), "");
        for (int i = 1; i <= 11; ++i) EXPECT_EQ(CellOf(screen.multiplicateur[i]), small);
        EXPECT_EQ(CellOf(screen.multiplicateur[12]), large);
        EXPECT_EQ(screen.titre.caption(), "Jouons avec la Table de " + std::to_string(table));
        pupil.Click(screen.retour);
        EXPECT_EQ(pupil.Heard(), Names{"3"});
    }
}

TEST(Apprendre, DrawsItsProductsDigitByDigit) {
    Pupil pupil;
    Apprendre& screen = pupil.screens.apprendre;
    pupil.ChooseTable(12);
    EXPECT_EQ(Row(screen, 0), (Names{"39,61,36,25", "76,61,36,25", ""}));                // 12
    EXPECT_EQ(Row(screen, 7), (Names{"335,61,36,25", "224,61,36,25", ""}));              // 96
    EXPECT_EQ(Row(screen, 8), (Names{"39,61,36,25", "2,61,36,25", "298,61,36,25"}));     // 108
    EXPECT_EQ(Row(screen, 11), (Names{"39,61,36,25", "150,61,36,25", "150,61,36,25"}));  // 144
    pupil.Click(screen.retour);
    for (int row = 0; row < 12; ++row) EXPECT_EQ(Row(screen, row), (Names{"", "", ""}));
    pupil.Heard();
    pupil.ChooseTable(3);
    EXPECT_EQ(Row(screen, 2), (Names{"", "335,61,36,25", ""}));            // 9
    EXPECT_EQ(Row(screen, 3), (Names{"39,61,36,25", "76,61,36,25", ""}));  // 12
    EXPECT_EQ(Row(screen, 9), (Names{"113,61,36,25", "2,61,36,25", ""}));  // 30
}

TEST(Apprendre, LeavingPutsTheFirstExerciseBack) {
    Pupil pupil;
    const auto& ui = pupil.screens.apprendre.factoring.ui;
    pupil.ChooseTable(5);
    pupil.Turn(ui.fleche, 3);
    pupil.Click(ui.chiffre);
    pupil.Click(pupil.screens.apprendre.retour);
    EXPECT_EQ(ui.chiffre.caption(), "0");
    EXPECT_FALSE(ui.encore_un.visible());
}

TEST(Apprendre, ArrowsRunThroughTheirValues) {
    Pupil pupil;
    const Apprendre& screen = pupil.screens.apprendre;
    Names letters;
    for (char letter = 'A'; letter <= 'Z'; ++letter) letters.push_back({letter});
    for (const int table : {12, 7}) {
        pupil.ChooseTable(table);
        pupil.Click(screen.multiple.ui.oui);
        TryOut(pupil, screen.factoring.ui.fleche, screen.factoring.ui.chiffre, Numbers("", 0, 50));
        TryOut(pupil, screen.multiple.ui.fleche2, screen.multiple.ui.chiffre2, Numbers("", 0, 50));
        TryOut(pupil, screen.multiple.ui.fleche3, screen.multiple.ui.chiffre3, Numbers("", 0, 1000, table));
        TryOut(pupil, screen.letter_code.ui.fleche4, screen.letter_code.ui.chiffre4, letters);
        TryOut(pupil, screen.missing_sign.ui.fleche5, screen.missing_sign.ui.signe, {"+", "-", "X"});
        pupil.Click(screen.retour);
        pupil.Heard();
    }
}

}  // namespace
