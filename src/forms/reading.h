#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"

namespace onze {

// A control as a screen reader tells it.
struct ReadControl {
    Control* control;
    std::string name;   // in French words
    std::string value;  // of an answer to enter, in words
};

// What a page has for those who do not see it, in the order of reading: what is visible, and has words.
std::vector<ReadControl> ReadPage(const Form& page);

// A text as it is said: "7 X 8 =" is "7 fois 8 égale".
std::string InWords(std::string_view text);

}  // namespace onze
