#include "support/picture_header.h"

#include <cstdint>
#include <string_view>

namespace {

class Bytes {
  public:
    explicit Bytes(std::span<const std::byte> bytes)
        : text_(reinterpret_cast<const char*>(bytes.data()), bytes.size()) {}

    bool StartsWith(std::string_view mark) const { return text_.starts_with(mark); }
    bool EndsWith(std::string_view mark) const { return text_.ends_with(mark); }
    std::size_t size() const { return text_.size(); }
    // Past the end everything is zero.
    int Byte(std::size_t at) const { return at < text_.size() ? static_cast<std::uint8_t>(text_[at]) : 0; }
    int Little(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8; }
    int Big(std::size_t at) const { return Byte(at) << 8 | Byte(at + 1); }

  private:
    std::string_view text_;
};

using Header = std::optional<PixelSize>;

Header Bmp(const Bytes& file) {
    const bool whole =
        file.StartsWith("BM") && file.size() >= 54 && static_cast<int>(file.size()) >= file.Little(2);
    return whole ? Header({file.Little(18), file.Little(22)}) : std::nullopt;
}

Header Gif(const Bytes& file) {
    const bool whole = file.StartsWith("GIF8") && file.EndsWith(";");
    return whole ? Header({file.Little(6), file.Little(8)}) : std::nullopt;
}

Header Png(const Bytes& file) {
    const bool whole = file.StartsWith("\x89PNG\r\n\x1a\n") && file.EndsWith("IEND\xae\x42\x60\x82");
    return whole ? Header({file.Big(18), file.Big(22)}) : std::nullopt;
}

Header Jpeg(const Bytes& file) {
    if (!file.StartsWith("\xff\xd8") || !file.EndsWith("\xff\xd9")) return std::nullopt;
    std::size_t at = 2;
    while (file.Byte(at) == 0xFF && file.Byte(at + 1) != 0xC0) {
        at += 2 + static_cast<std::size_t>(file.Big(at + 2));
    }
    return file.Byte(at) == 0xFF ? Header({file.Big(at + 7), file.Big(at + 5)}) : std::nullopt;
}

}  // namespace

std::optional<PixelSize> ReadPictureHeader(std::span<const std::byte> bytes) {
    const Bytes file(bytes);
    for (const auto format : {Bmp, Gif, Png, Jpeg}) {
        if (const Header header = format(file); header && header->width > 0 && header->height > 0)
            return header;
    }
    return std::nullopt;
}
