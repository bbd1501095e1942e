#include "support/whole_picture.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace onze {

namespace {

constexpr std::string_view kPngStart = "\x89PNG\r\n\x1a\n";
constexpr std::size_t kLengthAndName = 8;
constexpr std::size_t kChecksum = 4;

std::string_view TextOf(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

bool IsPng(std::span<const std::byte> file) {
    return TextOf(file).starts_with(kPngStart);
}

bool HasPngEnd(std::span<const std::byte> file) {
    std::string_view rest = TextOf(file.subspan(kPngStart.size()));
    while (rest.size() >= kLengthAndName + kChecksum) {
        if (rest.substr(4, 4) == "IEND") return true;
        std::uint32_t length = 0;
        for (const char byte : rest.substr(0, 4)) length = length << 8 | static_cast<unsigned char>(byte);
        rest.remove_prefix(std::min(kLengthAndName + std::size_t{length} + kChecksum, rest.size()));
    }
    return false;
}

}  // namespace onze
