#include "forms/answer.h"

namespace onze {

Answer::Answer(Label& label, UpDown& arrows, TextOf text_of, std::string unanswered)
    : label_(label), arrows_(arrows), text_of_(std::move(text_of)), unanswered_(std::move(unanswered)) {
    arrows_.on_change = [this] {
        if (on_change) on_change();
        entered_ = true;
        label_.SetCaption(text_of_(arrows_.value()));
    };
    arrows_.on_same = [this] {
        if (!entered_) arrows_.on_change();
    };
    arrows_.text_of = text_of_;
}

void Answer::Begin() {
    Rewind();
    arrows_.Show();
    entered_ = unanswered_.empty();
    label_.SetCaption(entered_ ? text_of_(arrows_.value()) : unanswered_);
}

std::optional<int> Answer::entered() const {
    if (!entered_) return std::nullopt;
    return arrows_.value();
}

}  // namespace onze
