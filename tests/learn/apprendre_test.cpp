#include "learn/learner.h"
#include "support/run_time_error.h"

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

TEST(Apprendre, NumberOfTheTableIsShownSmallElevenTimesAndLargeOnce) {
    struct Case {
        int table;
        std::string small;
        std::string large;
    };
    for (const Case& c : {Case{2, "76,61,36,25", "71,1,34,57"}, Case{9, "335,61,36,25", "316,1,34,57"},
                          Case{10, "1,88,53,25", "351,1,61,57"}, Case{11, "55,88,36,25", "413,1,59,57"},
                          Case{12, "92,88,47,25", "473,1,62,57"}}) {
        Learner learner(c.table);
        EXPECT_EQ(CellOf(learner.screen.multiplicateur[0]), "");
        for (int i = 1; i <= 11; ++i) EXPECT_EQ(CellOf(learner.screen.multiplicateur[i]), c.small);
        EXPECT_EQ(CellOf(learner.screen.multiplicateur[12]), c.large);
        EXPECT_EQ(learner.screen.titre.caption(), "Jouons avec la Table de " + std::to_string(c.table));
    }
}

TEST(Apprendre, ProductsAreDrawnDigitByDigit) {
    Learner learner(12);
    EXPECT_EQ(Row(learner.screen, 0), (Names{"39,61,36,25", "76,61,36,25", ""}));                // 12
    EXPECT_EQ(Row(learner.screen, 11), (Names{"39,61,36,25", "150,61,36,25", "150,61,36,25"}));  // 144
    learner.Click(learner.screen.retour);
    for (int row = 0; row < 12; ++row) EXPECT_EQ(Row(learner.screen, row), (Names{"", "", ""}));
    learner.Choose(3);
    EXPECT_EQ(Row(learner.screen, 2), (Names{"", "335,61,36,25", ""}));            // 9
    EXPECT_EQ(Row(learner.screen, 3), (Names{"39,61,36,25", "76,61,36,25", ""}));  // 12
    EXPECT_EQ(Row(learner.screen, 9), (Names{"113,61,36,25", "2,61,36,25", ""}));  // 30
}

TEST(Apprendre, EveryShowingAsksFourQuestionsOnTheChosenTable) {
    Learner learner(6, {{kReseed, {2, 0}, {6, 2}, {6, 3}},
                        {kReseed, {2, 0}, {20, 0}, {14, 1}},
                        {{26, 4}},
                        {kReseed, {12, 4}, {12, 2}, {3, 0}}});
    const Apprendre& screen = learner.screen;
    EXPECT_EQ(screen.factoring.ui.enonce.caption(), " 18 + 24 =  6 X");
    learner.Turn(screen.factoring.ui.fleche, 3);
    EXPECT_EQ(learner.Heard(), (Names{"1", "2", "3"}));
    learner.Click(screen.factoring.ui.chiffre);
    learner.Heard();

    learner.Click(screen.retour);
    EXPECT_EQ(learner.Heard(), Names{"3"});
    EXPECT_TRUE(learner.Sees(learner.screens.depart.form));
    EXPECT_EQ(screen.factoring.ui.chiffre.caption(), "0");
    EXPECT_FALSE(screen.factoring.ui.encore_un.visible());

    learner.Choose(9);
    EXPECT_EQ(screen.factoring.ui.enonce.caption(), " 9 + 9 =  9 X");
    EXPECT_EQ(screen.letter_code.ui.operation3.caption(), "X 9 = 9");
    EXPECT_EQ(screen.missing_sign.ui.chiffre5.caption(), " 18");
    learner.Step(screen.factoring.ui.fleche, 1);
    EXPECT_EQ(learner.Heard(), Names{"5"});  // the fourth was used up by leaving
}

// The order of what a correction does, seen by what a counter's overflow leaves undone.
TEST(Apprendre, FullCounterStopsTheRunAtItsPoint) {
    Counters full;
    full.TableWrong[5] = full.TableRight[5] = 32767;
    Pupil pupil;
    pupil.StartWith(full);
    for (const auto& draws : {Showing().factoring, Showing().multiple, Showing().letter, Showing().sign}) {
        pupil.random.Expect(draws);
    }
    pupil.Click(pupil.screens.depart.chiffre[5]);
    pupil.Heard();
    auto& screen = pupil.screens.apprendre;
    EXPECT_THROW(pupil.Click(screen.multiple.ui.non), RunTimeError);
    EXPECT_EQ(pupil.Heard(), Names{"1.def"});
    EXPECT_FALSE(screen.multiple.ui.oui.visible());
    EXPECT_FALSE(screen.multiple.ui.encore_deux.visible());
    try {
        pupil.Step(screen.missing_sign.ui.fleche5, 1);
        pupil.Step(screen.missing_sign.ui.fleche5, -1);
        pupil.Heard();
        pupil.Click(screen.missing_sign.ui.signe);
        ADD_FAILURE() << "a full counter was raised";
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "Dépassement de capacité du compteur « TableRight(5) ».");
    }
    EXPECT_TRUE(pupil.Heard().empty());  // here the counter comes before the sound
}

}  // namespace
