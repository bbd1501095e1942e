#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"

namespace onze {

// A control as a screen reader tells it.
struct ReadControl {
    enum class Kind { kText, kHeading, kPicture, kTable, kRowHeader, kColumnHeader, kToPress, kToEnter };

    Control* control = nullptr;
    Kind kind = Kind::kText;
    std::string name;   // in French words
    std::string value;  // of an answer to enter, in words

    friend bool operator==(const ReadControl&, const ReadControl&) = default;
};

// What a page has for those who do not see it, in the order of reading: what is visible, and has words.
std::vector<ReadControl> ReadPage(const Form& page);

// What a step of the program changed for a screen reader.
struct ReadingNews {
    bool page = false;               // another one is shown
    std::vector<Control*> messages;  // that have a new text
    Control* focused = nullptr;      // has the focus since then
    Control* entered = nullptr;      // has the focus, as before, and a new value
};

// Looks at the stage after each step, and tells what is new.
class ReadingWatch {
  public:
    // `said` are the messages that changed, a line each.
    ReadingNews Look(const Stage& stage, std::string_view said);

  private:
    const Form* page_ = nullptr;
    const Control* focused_ = nullptr;
    std::string value_;  // of what has the focus
};

// A text as it is said: "7 X 8 =" is "7 fois 8 égale".
std::string InWords(std::string_view text);

}  // namespace onze
