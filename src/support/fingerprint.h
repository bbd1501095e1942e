#pragma once

#include <string>
#include <string_view>

namespace onze {

// Tells contents apart that were not made to be mistaken for each other: 8 hexadecimal digits (FNV-1a).
std::string Fingerprint(std::string_view bytes);

}  // namespace onze
