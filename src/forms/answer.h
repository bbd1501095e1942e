#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/up_down.h"

namespace onze {

// An answer that arrows enter: one thing to whoever gives it, a label and a pair of arrows on the page.
// on_change runs before the label shows the new value.
class Answer {
  public:
    using TextOf = std::function<std::string(int value)>;

    // The label shows `unanswered` until something is entered. Without such a text it shows the first value,
    // which then is an answer as it stands.
    Answer(Label& label, UpDown& arrows, TextOf text_of, std::string unanswered);
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;

    // Asks for it: the arrows at their first value and shown, nothing entered yet.
    void Begin();
    // Sets the arrows to their first value.
    void Rewind() { arrows_.SetValue(arrows_.minimum()); }
    // Lets nothing more be entered.
    void Close() { arrows_.Hide(); }

    // The number entered, if any yet.
    std::optional<int> entered() const;

    std::function<void()> on_change;

  private:
    Label& label_;
    UpDown& arrows_;
    TextOf text_of_;
    std::string unanswered_;
    bool entered_ = false;
};

}  // namespace onze
