#pragma once

#include <initializer_list>

#include "support/pupil.h"

using Draws = std::vector<ScriptedDraw>;

// What the six exercises draw at one showing of their screen; a test replaces what it is about.
struct SixDraws {
    Draws membership{kReseed, {12, 3}, {11, 4}, {11, 4}};                    // 24, table of 6
    Draws product{{11, 5}, {11, 6}};                                         // 7 X 8
    Draws factor_pair{{10, 0}, {10, 5}};                                     // 24 = 3 X 8
    Draws missing_factor{{10, 5}, {10, 2}};                                  // 7 X 4
    Draws factored_sum{kReseed, kReseed, {2, 0}, {9, 3}, {12, 3}, {12, 5}};  // 24 + 36 = 6 X 10
    Draws note_factor{{7, 4}, {12, 11}};                                     // SOL X 12
};

inline void ExpectVisible(std::initializer_list<const Control*> shown,
                          std::initializer_list<const Control*> hidden) {
    for (const Control* control : shown) EXPECT_TRUE(control->visible());
    for (const Control* control : hidden) EXPECT_FALSE(control->visible());
}

// A pupil who has just opened the exercises screen.
class Exerciser : public Pupil {
  public:
    explicit Exerciser(const SixDraws& draws = {}, const Counters& counters = {}) {
        StartWith(counters);
        Open(draws);
    }

    void Open(const SixDraws& draws = {}) { Open(draws, screens.depart.exos); }
    void Open(const SixDraws& draws, const Control& zone) {
        random.Expect({kReseed});
        for (const auto* six : {&draws.membership, &draws.product, &draws.factor_pair, &draws.missing_factor,
                                &draws.factored_sum, &draws.note_factor}) {
            random.Expect(*six);
        }
        Heard();
        Click(zone);
        EXPECT_EQ(Heard(), Names{"5"});
    }

    // Moves an arrow away and on to a value, so that something is entered in any case.
    void Enter(const UpDown& arrow, int value) {
        Step(arrow, 1);
        Turn(arrow, value);
        Heard();
    }

    // The click that ends an exercise, whose verdict is heard and read; arrows and answers are then dead.
    // Leaves the screen, quits, and finds this one exercise counted, and nothing else.
    void Finish(const Label& clicked, const Label& message, const std::string& text, const Label& encor,
                std::initializer_list<const UpDown*> arrows) {
        const bool right = text.starts_with("Bravo") || text.starts_with("C'est juste");
        Heard();
        Click(clicked);
        Tap(clicked);
        const Names heard = Heard();
        EXPECT_EQ(heard.size(), 1U);
        EXPECT_TRUE(heard.back().ends_with(right ? ".vic" : ".def"));
        EXPECT_EQ(message.caption(), text);
        EXPECT_TRUE(encor.visible());
        for (const UpDown* arrow : arrows) EXPECT_FALSE(arrow->visible());
        ExpectPuzzles(1, right, !right);
    }

    void ExpectPuzzles(int count, int right, int wrong) {
        Click(screen.fin);
        Counters expected;
        expected.PuzzleCount = static_cast<std::int16_t>(count);
        expected.PuzzleRight = static_cast<std::int16_t>(right);
        expected.PuzzleWrong = static_cast<std::int16_t>(wrong);
        EXPECT_EQ(Quit(), expected);
    }

    Exercices& screen = screens.exercices;
};

inline const std::string kNowEnter =
    "C'est juste ! Entrez votre réponse grâce aux flèches\rpuis cliquez sur cette réponse pour la "
    "correction.";
inline const std::string kBravo = "Bravo ! Vous avez trouvé la solution !" + kGoOn;
