#pragma once

#include <functional>

#include "support/pupil.h"

namespace onze {

// What a pupil does in an exercise: enters a value with an arrow, or clicks a label and then sees this.
struct Deed {
    Deed(const UpDown& turned, int to) : arrow(&turned), value(to) {}
    Deed(const Label& label, std::string then) : clicked(&label), seen(std::move(then)) {}

    const UpDown* arrow = nullptr;
    int value = 0;
    const Label* clicked = nullptr;
    std::string seen;
};

// A question and a way to answer it. An exercise is seen as the captions of its labels and the values of its
// arrows ("^7"), as far as they are shown, in their order and with bars between them.
struct Way {
    Draws draws;
    std::string asked;
    std::vector<Deed> deeds;  // the last one ends the exercise
    bool right;
    // What the last click has done before it runs into a full counter, of exercises or of its verdict:
    // buttons or arrows hidden (a), heard (h), told (t), "Continuer" shown (c), another counter raised (+).
    std::string before_exercises;
    std::string before_verdict;
    int table;  // that was chosen for the learning screen
};

// An exercise of the learning or of the exercises screen, with all that is known of it.
struct ExerciseCase {
    const Form& form;
    int place;             // among those of its screen, in the order of their questions
    const Control& first;  // of its controls, which stand side by side
    const Control& last;
    const Label& message;
    const Label& encore;
    std::vector<Way> ways;
    std::function<void()> check = [] {};  // of what else has to hold whenever it is looked at

    void Add(const Draws& draws, const std::string& asked, const std::vector<Deed>& deeds, bool right,
             const char* before_exercises, const char* before_verdict, int table = 0) {
        ways.push_back({draws, asked, deeds, right, before_exercises, before_verdict, table});
    }
};

using ExerciseOf = ExerciseCase (*)(Screens&);

// Every exercise is put to the same tests by an
//     INSTANTIATE_TEST_SUITE_P(Name, ExerciseTest, testing::Values(TheExercise));
class ExerciseTest : public testing::TestWithParam<ExerciseOf> {};

// A text with these in its places, "{}".
struct Word : std::string {
    using std::string::string;
    Word(const std::string& text) : std::string(text) {}
    Word(int number) : std::string(std::to_string(number)) {}
};
std::string Put(std::string text, const std::vector<Word>& words);

inline const std::string kGoOn = "\rCliquez sur Continuer pour un autre exercice.";
inline const std::string kEnter =
    "Entrez votre réponse grâce aux flèches puis cliquez sur cette réponse pour la correction.";
inline const std::string kEnterOnTwoLines =
    "Entrez votre réponse grâce aux flèches puis\rcliquez sur cette réponse pour la correction.";
inline const std::string kEnterBoth =
    "Entrez vos réponses grâce aux flèches puis cliquez sur ces réponses pour la correction.";
inline const std::string kNowEnter =
    "C'est juste ! Entrez votre réponse grâce aux flèches\rpuis cliquez sur cette réponse pour la "
    "correction.";
inline const std::string kBravo = "Bravo ! Vous avez trouvé la solution !" + kGoOn;

}  // namespace onze
