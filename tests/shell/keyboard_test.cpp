#include <algorithm>

#include "shell/paper.h"
#include "support/pupil.h"
#include "support/writing_canvas.h"

namespace onze {

namespace {

class Keyboard : public testing::Test {
  protected:
    const Control* focused() const { return pupil.program.stage().focused(); }

    // The names of what the Tab key leads to, once round.
    Names Walk(Key key = Key::kTab) {
        Names met;
        const Control* first = nullptr;
        for (pupil.Press(key); focused() != first; pupil.Press(key)) {
            if (!first) first = focused();
            met.push_back(focused()->name());
        }
        return met;
    }
    void PressHeld(Key key) { pupil.program.Take(event::KeyPressed{{.key = key, .repeated = true}}); }

    Pupil pupil;
    Screens& screens = pupil.screens;
};

TEST_F(Keyboard, WalksThroughAllThatCanBeUsedInTheOrderOfReading) {
    Names start = Numbers("Jouons avec la Table de ", 2, 12, 1);
    start.insert(start.end(), {"Consulter la Table de Pythagore", "La MULTIPLICATION ? Qu'est-ce donc ?",
                               "Envie de vous exercer un peu ?", "Consulter le Bilan d'Utilisation",
                               "Table de Pythagore", "Quelques rappels", "Un peu d'entraînement",
                               "Bilan d'utilisation", "10:20:30", "Samedi 21 novembre 2026", "SORTIE"});
    EXPECT_EQ(Walk(), start);
    pupil.Press(Key::kBackTab);
    EXPECT_EQ(focused(), &screens.depart.fin);

    pupil.by_keys = true;
    pupil.ExpectExercises();
    pupil.Click(screens.depart.exos);
    const Exercices& page = screens.exercices;
    const Control* const stops[] = {
        &page.missing_factor.ui.chiffre6, &page.product.ui.chiffre3,      &page.factor_pair.ui.chiffre4,
        &page.membership.ui.oui,          &page.membership.ui.non,        &page.note_factor.ui.chiffre9,
        &page.factored_sum.ui.chiffre7,   &page.factored_sum.ui.chiffre8, &page.fin};
    for (const Control* stop : stops) {
        EXPECT_EQ(focused(), stop) << stop->name();
        pupil.Press(Key::kTab);
    }
    EXPECT_EQ(focused(), stops[0]);
}

TEST_F(Keyboard, TheRingShowsFromTheFirstKeyToThePointersNextUse) {
    const auto rings = [this] {
        WritingCanvas canvas;
        pupil.program.Paint(canvas, {0, 0, 640, 480});
        return canvas.out.str().find("in 16,42,140") != std::string::npos;
    };
    EXPECT_FALSE(rings());
    pupil.Press(Key::kClick);  // nobody has seen yet what it would click
    EXPECT_TRUE(pupil.Sees(screens.depart.form));
    EXPECT_TRUE(rings());
    EXPECT_EQ(focused(), &screens.depart.chiffre[0]);
    EXPECT_EQ(screens.depart.label_table.caption(), "Jouons avec la Table de 2");
    const Rect& box = screens.depart.chiffre[0].box();
    EXPECT_FALSE(pupil.reaction.repaint.empty());
    EXPECT_LE(pupil.reaction.repaint.left, box.left / 15 - 4);
    EXPECT_GE(pupil.reaction.repaint.right(), box.right() / 15 + 4);
    const Reaction moved = pupil.program.Take(event::PointerMoved{{3, 3}});
    EXPECT_FALSE(rings());
    EXPECT_LE(moved.repaint.left, box.left / 15 - 4);
    EXPECT_EQ(screens.depart.label_table.caption(), "Cliquez sur une table");

    pupil.Press(Key::kTab);
    EXPECT_EQ(focused(), &screens.depart.chiffre[1]);
    pupil.program.Take(event::PointerPressed{.at = {3, 3}});
    EXPECT_EQ(focused(), nullptr);
}

TEST_F(Keyboard, ArrowKeysWalkTheNumbers) {
    pupil.Press(Key::kTab);
    for (int i = 1; i < 11; ++i) {
        pupil.Press(Key::kRight);
        EXPECT_EQ(focused(), &screens.depart.chiffre[i]);
        EXPECT_EQ(screens.depart.label_table.caption(), focused()->name());
    }
    for (int i = 9; i >= 0; --i) pupil.Press(Key::kLeft);
    pupil.Press(Key::kDown);
    EXPECT_EQ(focused(), &screens.depart.chiffre[1]);
    pupil.Press(Key::kUp);
    EXPECT_EQ(focused(), &screens.depart.chiffre[0]);

    pupil.by_keys = true;
    Pythagore& page = screens.pythagore;
    pupil.Click(screens.depart.pytha);
    for (int i = 0; i <= 10; pupil.Press(Key::kDown), ++i) EXPECT_EQ(focused(), &page.colonne[i]);
    for (int i = 9; i >= 8; --i) pupil.Press(Key::kUp);
    pupil.Press(Key::kClick);
    EXPECT_EQ(page.operation.caption(), "8 que multiplie ?? = ??");
    EXPECT_EQ(focused(), &page.rangee[0]);
    for (int i = 0; i < 7; ++i) pupil.Press(Key::kRight);
    pupil.Press(Key::kClick);
    EXPECT_EQ(page.operation.caption(), "8 que multiplie 7 = 56");
    // All numbers are closed: it waits there, until they are open again.
    EXPECT_EQ(focused(), &page.rangee[7]);
    pupil.Press(Key::kClick);
    EXPECT_EQ(page.operation.caption(), "8 que multiplie 7 = 56");
    pupil.Wait(20000);
    EXPECT_EQ(focused(), &page.rangee[7]);
    EXPECT_TRUE(page.rangee[7].enabled());
    EXPECT_EQ(pupil.program.counters().PythagoreSolves.value(), 1);
}

TEST_F(Keyboard, EscapeGoesBackAndOnTheStartScreenToTheWayOut) {
    pupil.by_keys = true;
    for (Control* opener :
         {static_cast<Control*>(&screens.depart.pytha), static_cast<Control*>(&screens.depart.Label2),
          static_cast<Control*>(&screens.depart.Image_bilan)}) {
        pupil.Click(*opener);
        EXPECT_FALSE(pupil.Sees(screens.depart.form));
        PressHeld(Key::kEscape);
        PressHeld(Key::kClick);
        EXPECT_FALSE(pupil.Sees(screens.depart.form));
        pupil.Heard();
        pupil.Press(Key::kEscape);
        EXPECT_TRUE(pupil.Sees(screens.depart.form));
        EXPECT_EQ(pupil.Heard(), Names{"3"});
        EXPECT_EQ(focused(), opener);
    }
    pupil.Click(screens.depart.pytha);
    EXPECT_EQ(focused(), &screens.pythagore.colonne[0]) << "not where the last visit ended";
    pupil.Press(Key::kEscape);
    pupil.Press(Key::kEscape);
    EXPECT_EQ(focused(), &screens.depart.fin);
    EXPECT_EQ(screens.depart.label_table.caption(), "Voulez-vous déjà nous quitter ?");
    PressHeld(Key::kClick);
    EXPECT_EQ(pupil.reaction.state, Reaction::State::kRuns);
    pupil.Press(Key::kClick);
    EXPECT_EQ(pupil.reaction.state, Reaction::State::kEnded);
}

// What was done before the digits, the digits, and the answer then; an answer is heard once for each change.
TEST_F(Keyboard, DigitsLettersAndSignsAreEntered) {
    pupil.by_keys = true;
    pupil.ChooseTable(7);
    Apprendre& page = screens.apprendre;
    const auto enter = [&](const Label& answer, const std::string& typed) {
        pupil.FocusOn(answer);
        pupil.Heard();
        pupil.Type(typed);
        return answer.caption() + ", " + std::to_string(pupil.Heard().size());
    };
    const Label& factor = page.factoring.ui.chiffre;
    const std::string first = std::to_string(page.factoring.ui.fleche.minimum());
    EXPECT_EQ(factor.caption(), "??");
    EXPECT_EQ(enter(factor, "99"), "9, 1") << "the second digit leads out of reach";
    EXPECT_EQ(enter(factor, "07"), "7, 2") << "a zero, then more";
    EXPECT_EQ(enter(factor, "7"), "7, 0");
    EXPECT_EQ(enter(factor, "12"), "12, 2");
    EXPECT_EQ(enter(factor, "x-A"), "12, 0");
    EXPECT_EQ(enter(page.letter_code.ui.chiffre4, "z"), "Z, 1");
    EXPECT_EQ(enter(page.letter_code.ui.chiffre4, "5b"), "B, 1");
    EXPECT_EQ(enter(page.missing_sign.ui.signe, "-"), "-, 1");
    EXPECT_EQ(enter(page.missing_sign.ui.signe, "x"), "X, 1");
    EXPECT_EQ(enter(page.missing_sign.ui.signe, "+"), "+, 1");
    EXPECT_EQ(enter(page.missing_sign.ui.signe, "*"), "X, 1");

    // The sign's key writes a minus on some layouts where others have a six.
    const auto six = event::KeyPressed{{.key = Key::kCharacter, .character = '-', .digit = '6'}};
    pupil.FocusOn(factor);
    pupil.host.now += 1001;
    pupil.program.Take(six);
    EXPECT_EQ(factor.caption(), "6");
    pupil.FocusOn(page.missing_sign.ui.signe);
    pupil.program.Take(six);
    EXPECT_EQ(page.missing_sign.ui.signe.caption(), "-");

    pupil.FocusOn(factor);
    for (const auto& [key, shown] : {std::pair{Key::kHome, first},
                                     {Key::kPageUp, std::to_string(std::stoi(first) + 10)},
                                     {Key::kUp, std::to_string(std::stoi(first) + 11)},
                                     {Key::kPageDown, std::to_string(std::stoi(first) + 1)},
                                     {Key::kPageDown, first}}) {
        pupil.Heard();
        pupil.Press(key);
        EXPECT_EQ(factor.caption(), shown);
        EXPECT_EQ(pupil.Heard().size(), 1U);
    }
    pupil.Press(Key::kEnd);
    const std::string last = factor.caption();
    pupil.Press(Key::kUp);
    EXPECT_EQ(factor.caption(), last);
}

// The first value counts as entered once it is typed, and the arrows' steps count.
TEST_F(Keyboard, OnlyWhatTheArrowsCanReachIsEntered) {
    pupil.by_keys = true;
    pupil.ChooseTable(7);
    const MultiplePanel::Ui& ui = screens.apprendre.multiple.ui;
    pupil.Click(ui.oui);
    EXPECT_EQ(focused(), &ui.chiffre2);
    pupil.Heard();
    pupil.Type("0");
    EXPECT_EQ(ui.chiffre2.caption(), "0");
    EXPECT_EQ(pupil.Heard().size(), 1U);
    pupil.FocusOn(ui.chiffre3);
    pupil.Type("15");
    EXPECT_EQ(ui.chiffre3.caption(), "??");
    pupil.Type("14");
    EXPECT_EQ(ui.chiffre3.caption(), "14");
}

TEST_F(Keyboard, GoesWhereAChildWouldGoNext) {
    pupil.by_keys = true;
    pupil.ChooseTable(7);
    const FactoringPanel::Ui& ui = screens.apprendre.factoring.ui;
    pupil.Press(Key::kUp);
    pupil.Press(Key::kClick);
    EXPECT_EQ(focused(), &ui.encore_un);
    pupil.random.Expect({kReseed, {2, 0}, {6, 0}, {6, 0}});
    pupil.Press(Key::kClick);
    EXPECT_EQ(focused(), &ui.chiffre);
    // With the pointer in between, the keys go on where it was used.
    pupil.by_keys = false;
    pupil.Step(screens.apprendre.letter_code.ui.fleche4, 1);
    pupil.Press(Key::kUp);
    EXPECT_EQ(screens.apprendre.letter_code.ui.chiffre4.caption(), "C");
    EXPECT_EQ(focused(), &screens.apprendre.letter_code.ui.chiffre4);
}

TEST_F(Keyboard, PrintsThePageShownUnderItsHead) {
    const auto on_paper = [this] {
        WritingCanvas canvas;
        pupil.program.PaintOnPaper(canvas);
        return canvas.out.str();
    };
    const auto on_screen = [this] {
        WritingCanvas canvas;
        pupil.program.Paint(canvas, {0, 0, 640, 480});
        return canvas.out.str();
    };
    const std::string shown = on_screen();
    pupil.Press(Key::kPrint);
    EXPECT_TRUE(pupil.reaction.print);
    EXPECT_EQ(on_screen(), shown);
    EXPECT_FALSE(pupil.program.Take(event::KeyPressed{{.key = Key::kPrint, .repeated = true}}).print);
    pupil.Press(Key::kTab);
    EXPECT_FALSE(pupil.reaction.print);
    EXPECT_NE(on_screen(), shown) << "the ring";
    const std::string head = "|Onze Tables|";
    EXPECT_TRUE(on_paper().find(head) < on_paper().find("|Samedi 21 novembre 2026|"));
    EXPECT_TRUE(on_paper().find("picture") < on_paper().find("|SORTIE|"));
    EXPECT_EQ(on_paper().find("in 16,42,140"), std::string::npos);
    EXPECT_EQ(on_paper().find("|Nom :|"), std::string::npos);
    pupil.Click(screens.depart.Image_bilan);
    EXPECT_NE(on_paper().find("|Nom :|"), std::string::npos);

    // The head is above the page, which keeps its shape.
    for (const auto& [width, height] : {std::pair{1920, 1530}, {3000, 1530}, {1600, 2400}}) {
        const PageView view = ViewOnPaper(width, height);
        EXPECT_GE(view.ToPixels(Point{0, -30_px}).y, 0);
        EXPECT_LE(view.page().bottom(), height);
        EXPECT_LE(view.page().right(), width);
        EXPECT_NEAR(view.page().width * 3, view.page().height * 4, 4);
    }
}

}  // namespace

}  // namespace onze
