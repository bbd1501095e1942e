#include "support/whole_picture.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

namespace onze {

namespace {

constexpr std::string_view kPngStart = "\x89PNG\r\n\x1a\n";
constexpr std::size_t kLengthAndName = 8;
constexpr std::size_t kChecksum = 4;

std::string_view TextOf(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// What the first chunk of this name holds, as far as it is there.
std::optional<std::string_view> FindChunk(std::span<const std::byte> png, std::string_view name) {
    std::string_view rest = TextOf(png.subspan(kPngStart.size()));
    while (rest.size() >= kLengthAndName + kChecksum) {
        std::uint32_t length = 0;
        for (const char byte : rest.substr(0, 4)) length = length << 8 | static_cast<unsigned char>(byte);
        if (rest.substr(4, 4) == name) return rest.substr(kLengthAndName, length);
        rest.remove_prefix(std::min(kLengthAndName + std::size_t{length} + kChecksum, rest.size()));
    }
    return std::nullopt;
}

}  // namespace

bool IsPng(std::span<const std::byte> file) {
    return TextOf(file).starts_with(kPngStart);
}

bool HasPngEnd(std::span<const std::byte> file) {
    return FindChunk(file, "IEND").has_value();
}

std::string_view PngText(std::span<const std::byte> file, std::string_view keyword) {
    if (!IsPng(file)) return {};
    const std::string_view text = FindChunk(file, "tEXt").value_or("");
    const std::string_view value = text.substr(std::min(keyword.size() + 1, text.size()));
    return text.starts_with(keyword) && text.substr(keyword.size()).starts_with('\0') ? value
                                                                                      : std::string_view();
}

}  // namespace onze
