#include "learn/panel.h"

#include "support/number_text.h"

void Panel::CountExercise() {
    Raise(shared_.counters.TableExercises, table(), "TableExercises");
}

void Panel::Count(bool right) {
    if (right) {
        Raise(shared_.counters.TableRight, table(), "TableRight");
    } else {
        Raise(shared_.counters.TableWrong, table(), "TableWrong");
    }
}

void Panel::SoundAndCount(bool right) {
    sounds().PlayVerdictSound(right);
    Count(right);
}

void Panel::CountAndSound(bool right) {
    Count(right);
    sounds().PlayVerdictSound(right);
}

void Panel::ShowNumber(const UpDown& arrows, Label& answer) {
    sounds().PlayClickSound();
    answer.SetCaption(Digits(arrows.value()));
}
