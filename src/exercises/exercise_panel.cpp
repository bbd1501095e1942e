#include "exercises/exercise_panel.h"

#include "support/number_text.h"

std::string TimesText(int second, int product) {
    return "X" + Str(second) + " =" + Str(product);
}

void ExercisePanel::Link(UpDown& arrow, Label& answer) {
    arrow.on_change = [this, &arrow, &answer] {
        sounds().PlayClickSound();
        answer.SetCaption(Str(arrow.value()));
    };
}

void ExercisePanel::Ask(UpDown& arrow, Label& answer) {
    arrow.SetValue(arrow.minimum());
    arrow.Show();
    answer.SetCaption(kUnanswered);
}

bool ExercisePanel::AnswerGuard(const Label& answer, const Label& encor) {
    return answer.caption() != kUnanswered && !encor.visible();
}

void ExercisePanel::CountExercise() {
    Raise(shared_.counters.PuzzleCount, "PuzzleCount");
}

void ExercisePanel::Count(bool right) {
    if (right) {
        Raise(shared_.counters.PuzzleRight, "PuzzleRight");
    } else {
        Raise(shared_.counters.PuzzleWrong, "PuzzleWrong");
    }
}

void ExercisePanel::Tell(bool right, Label& message, const std::string& text) {
    Count(right);
    sounds().PlayVerdictSound(right);
    message.SetCaption(text);
}
