#include "support/fingerprint.h"

#include <cstdint>

namespace onze {

std::string Fingerprint(std::string_view bytes) {
    std::uint32_t hash = 2166136261;
    for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619;
    std::string digits;
    for (int shift = 28; shift >= 0; shift -= 4) digits += "0123456789abcdef"[hash >> shift & 0xF];
    return digits;
}

}  // namespace onze
