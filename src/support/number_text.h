#pragma once

#include <string>
#include <string_view>

namespace onze {

// The number as it is spliced into questions and messages: one blank stands for the plus sign (" 7", "-3").
std::string Str(long long number);

// The number as the learning screen's answers, the Pythagoras table and the report show it: bare digits
// ("7", "-3").
std::string Digits(long long number);

// The whole number at the start of a text: blanks are skipped wherever they stand, reading stops at the first
// other character that cannot belong to the number, and a text without any number gives 0. Numbers of more
// than nine digits are not read further.
int Val(std::string_view text);

}  // namespace onze
