#pragma once

#include <string>

// A UTF-8 text with its first letter in upper case: Latin, Greek and Cyrillic letters are known, others stay.
std::string WithCapital(std::string text);
