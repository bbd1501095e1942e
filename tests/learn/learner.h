#pragma once

#include <initializer_list>

#include "support/pupil.h"

// The draws of the four exercises at one showing of the learning screen; a test replaces those it is about.
struct Showing {
    std::vector<ScriptedDraw> factoring{kReseed, {2, 0}, {6, 0}, {6, 0}};
    std::vector<ScriptedDraw> multiple{kReseed, {2, 0}, {20, 0}, {14, 0}};
    std::vector<ScriptedDraw> letter{{26, 0}};
    std::vector<ScriptedDraw> sign{kReseed, {12, 1}, {12, 0}, {3, 0}};
};

// A pupil who has just chosen a table.
class Learner : public Pupil {
  public:
    explicit Learner(int table, const Showing& showing = {}, const Counters& counters = {}) {
        StartWith(counters);
        Choose(table, showing);
    }

    void Choose(int table, const Showing& showing = {}) {
        for (const auto* draws : {&showing.factoring, &showing.multiple, &showing.letter, &showing.sign}) {
            random.Expect(*draws);
        }
        Click(screens.depart.chiffre[table - kFirstTable]);
        Heard();
    }

    Apprendre& screen = screens.apprendre;
};

// What a run counted for one table.
struct Score {
    int exercises;
    int right;
    int wrong;

    static Score Of(const Counters& counters, int table) {
        const auto i = static_cast<std::size_t>(table - kFirstTable);
        return {counters.TableExercises[i], counters.TableRight[i], counters.TableWrong[i]};
    }
    friend bool operator==(const Score&, const Score&) = default;
};

// Leaves the learning screen, quits, and tells what was counted for the table and for no other.
inline Score ScoreOf(Learner& learner, int table) {
    learner.Click(learner.screen.retour);
    Counters saved = learner.Quit();
    const Score score = Score::Of(saved, table);
    const auto i = static_cast<std::size_t>(table - kFirstTable);
    EXPECT_EQ(saved.TableConsultations[i], 1);
    for (auto* counter :
         {&saved.TableConsultations, &saved.TableExercises, &saved.TableRight, &saved.TableWrong}) {
        (*counter)[i] = 0;
    }
    EXPECT_EQ(saved, Counters());
    return score;
}
