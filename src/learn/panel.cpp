#include "learn/panel.h"

void Panel::CountExercise() {
    Raise(shared_.counters.TableExercises, table(), "TableExercises");
}

void Panel::CountRight() {
    Raise(shared_.counters.TableRight, table(), "TableRight");
}

void Panel::CountWrong() {
    Raise(shared_.counters.TableWrong, table(), "TableWrong");
}

void Panel::SoundAndCount(bool right) {
    if (right) {
        sounds().PlayVictorySound();
        CountRight();
    } else {
        sounds().PlayDefeatSound();
        CountWrong();
    }
}
