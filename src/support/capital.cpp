#include "support/capital.h"

namespace onze {

namespace {

using Letter = unsigned int;

constexpr bool Between(Letter letter, Letter first, Letter last) {
    return letter >= first && letter <= last;
}

// Letters of two bytes.
Letter Upper(Letter letter) {
    if (Between(letter, 0xE0, 0xFE) && letter != 0xF7) return letter - 0x20;
    if (Between(letter, 0x139, 0x148) || Between(letter, 0x179, 0x17E)) return letter - (letter % 2 == 0);
    if (Between(letter, 0x100, 0x177) && letter != 0x131 && letter != 0x138 && letter != 0x149)
        return letter - (letter % 2);
    if (Between(letter, 0x3B1, 0x3C9) && letter != 0x3C2) return letter - 0x20;
    if (Between(letter, 0x430, 0x44F)) return letter - 0x20;
    if (Between(letter, 0x450, 0x45F)) return letter - 0x50;
    return letter;
}

}  // namespace

std::string WithCapital(std::string text) {
    if (text.empty()) return text;
    const auto first = static_cast<unsigned char>(text[0]);
    if (Between(first, 'a', 'z')) text[0] = static_cast<char>(first - 'a' + 'A');
    if (Between(first, 0xC2, 0xDF) && text.size() > 1) {
        const auto second = static_cast<unsigned char>(text[1]);
        const Letter upper = Upper((first & 0x1FU) << 6 | (second & 0x3FU));
        text[0] = static_cast<char>(0xC0 | upper >> 6);
        text[1] = static_cast<char>(0x80 | (upper & 0x3F));
    }
    return text;
}

}  // namespace onze
