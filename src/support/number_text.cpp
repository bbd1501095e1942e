#include "support/number_text.h"

namespace onze {

std::string Str(long long number) {
    return number < 0 ? Digits(number) : " " + Digits(number);
}

std::string Digits(long long number) {
    return std::to_string(number);
}

int Val(std::string_view text) {
    int value = 0;
    int digits = 0;
    bool negative = false;
    bool signed_yet = false;
    for (const char c : text) {
        if (c == ' ') continue;
        if ((c == '-' || c == '+') && !signed_yet && digits == 0) {
            signed_yet = true;
            negative = c == '-';
        } else if (c >= '0' && c <= '9' && digits < 9) {
            value = value * 10 + (c - '0');
            ++digits;
        } else {
            break;
        }
    }
    return negative ? -value : value;
}

}  // namespace onze
