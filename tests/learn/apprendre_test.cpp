#include "learn/learner.h"

namespace {

using namespace std::string_literals;

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

// Where an answer's last click goes, and what it changes.
struct End {
    const Label& clicked;
    const Label& message;
    const Label& encore;
};

// A way to end an exercise, and what it has done when it runs into the full counter of exercises or of its
// verdict: heard (h), told (t), "Continuer" shown (c), and how many other counters were raised.
struct Way {
    bool right;
    std::function<End(Learner&)> answer;
    std::string full_exercises;
    std::string full_verdict;
    Showing draws{};
};

End Factoring(Learner& learner, int answer) {
    const auto& ui = learner.screen.factoring.ui;
    learner.Turn(ui.fleche, answer);
    return {ui.chiffre, ui.label_table1, ui.encore_un};
}

End Multiple(Learner& learner, bool oui) {
    const auto& ui = learner.screen.multiple.ui;
    return {oui ? ui.oui : ui.non, ui.enonce2, ui.encore_deux};
}

End MultipleProduct(Learner& learner, int factor) {
    const auto& ui = learner.screen.multiple.ui;
    learner.Click(ui.oui);
    learner.Turn(ui.fleche2, factor);
    learner.Turn(ui.fleche3, std::stoi(ui.operation2.caption().substr(2)) * 4);
    return {ui.chiffre3, ui.enonce2, ui.encore_deux};
}

End Letter(Learner& learner, char letter) {
    const auto& ui = learner.screen.letter_code.ui;
    learner.Turn(ui.fleche4, letter);
    return {ui.chiffre4, ui.enonce3, ui.encore_trois};
}

End Sign(Learner& learner, int last_step) {
    const auto& ui = learner.screen.missing_sign.ui;
    learner.Step(ui.fleche5, 1);
    learner.Step(ui.fleche5, last_step);
    return {ui.signe, ui.enonce4, ui.encore_quatre};
}

std::vector<Way> Ways() {
    const Showing thirteen{.multiple{kReseed, {2, 1}, {50, 0}, {50, 11}}};  // no multiple of any table
    return {{true, [](Learner& l) { return Factoring(l, 2); }, "0", "hc1"},
            {false, [](Learner& l) { return Factoring(l, 3); }, "0", "hc1"},
            {true, [](Learner& l) { return Multiple(l, false); }, "0", "h1", thirteen},
            {false, [](Learner& l) { return Multiple(l, false); }, "0", "h1"},
            {false, [](Learner& l) { return Multiple(l, true); }, "ht1", "h0", thirteen},
            {true, [](Learner& l) { return MultipleProduct(l, 4); }, "0", "c1"},
            {false, [](Learner& l) { return MultipleProduct(l, 5); }, "0", "hc1"},
            {true, [](Learner& l) { return Letter(l, 'A'); }, "0", "hc1"},
            {false, [](Learner& l) { return Letter(l, 'B'); }, "0", "hc1"},
            {true, [](Learner& l) { return Sign(l, -1); }, "0", "c1"},
            {false, [](Learner& l) { return Sign(l, 1); }, "0", "c1"}};
}

std::string DoneBefore(Counters::PerTable Counters::*full, const char* name, int table, const Way& way) {
    const auto i = static_cast<std::size_t>(table - kFirstTable);
    Counters counters;
    (counters.*full)[i] = 32767;
    Learner learner(table, way.draws, counters);
    const End end = way.answer(learner);
    const std::string before = end.message.caption();
    learner.Heard();
    learner.ClickIntoFull(end.clicked, name + "("s + std::to_string(i) + ")");
    std::string done;
    if (!learner.Heard().empty()) done += 'h';
    if (end.message.caption() != before) done += 't';
    if (end.encore.visible()) done += 'c';
    learner.Click(learner.screen.retour);
    const Score score = Score::Of(learner.Quit(), table);
    return done + std::to_string(score.exercises + score.right + score.wrong - 32767);
}

// The order of what a correction does, seen by what a counter's overflow leaves undone.
TEST(Apprendre, FullCounterStopsTheRunAtItsPoint) {
    const std::vector<Way> ways = Ways();
    for (int table = 2; table <= 12; ++table) {
        for (const Way& way : ways) {
            SCOPED_TRACE(testing::Message() << "table " << table << ", way " << &way - ways.data());
            EXPECT_EQ(DoneBefore(&Counters::TableExercises, "TableExercises", table, way),
                      way.full_exercises);
            EXPECT_EQ(way.right ? DoneBefore(&Counters::TableRight, "TableRight", table, way)
                                : DoneBefore(&Counters::TableWrong, "TableWrong", table, way),
                      way.full_verdict);
        }
    }
}

}  // namespace
