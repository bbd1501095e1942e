#pragma once

#include <string>

namespace onze {

// A UTF-8 text with its first letter in upper case: those that day names of Latin, Greek and
// Cyrillic writing begin with are known, others stay.
std::string WithCapital(std::string text);

}  // namespace onze
