#include "stats/tally.h"

namespace onze {

void TableTally::CountExercise() {
    Raise(shared_.counters.TableExercises, shared_.CurrentTable, "TableExercises");
}

void TableTally::CountVerdict(bool right) {
    if (right) {
        Raise(shared_.counters.TableRight, shared_.CurrentTable, "TableRight");
    } else {
        Raise(shared_.counters.TableWrong, shared_.CurrentTable, "TableWrong");
    }
}

void PuzzleTally::CountExercise() {
    Raise(counters_.PuzzleCount, "PuzzleCount");
}

void PuzzleTally::CountVerdict(bool right) {
    if (right) {
        Raise(counters_.PuzzleRight, "PuzzleRight");
    } else {
        Raise(counters_.PuzzleWrong, "PuzzleWrong");
    }
}

}  // namespace onze
