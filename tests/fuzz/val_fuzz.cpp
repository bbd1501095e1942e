#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "support/number_text.h"

namespace {

// The same number, found in another way: without blanks, by the library, in nine digits.
int Expected(std::string text) {
    std::erase(text, ' ');
    const bool plus = text.starts_with('+');
    if (plus) text.erase(0, 1);
    if (plus && text.starts_with('-')) return 0;
    const std::size_t longest = text.starts_with('-') ? 10 : 9;
    int number = 0;
    std::from_chars(text.data(), text.data() + std::min(text.size(), longest), number);
    return number;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const int number = Val(text);
    if (number != Expected(text) || Val(Str(number) + " =" + text) != number) std::abort();
    return 0;
}
