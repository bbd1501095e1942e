#include "support/whole_picture.h"

#include <cstdint>
#include <string_view>

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

bool LacksPngEnd(std::string_view file) {
    const std::size_t end = file.find("IEND");
    return end == kNowhere || file.size() < end + 8;
}

// A preview inside the file has an end of its own, before the last of the picture's data starts.
bool LacksJpegEnd(std::string_view file) {
    const std::size_t data = file.rfind("\xff\xda");
    return data == kNowhere || file.find("\xff\xd9", data) == kNowhere;
}

// Zeros may follow the end.
bool LacksGifEnd(std::string_view file) {
    return file[file.find_last_not_of('\0')] != ';';
}

// The head tells the size of the file.
bool LacksBmpEnd(std::string_view file) {
    if (file.size() < 6) return true;
    std::uint32_t size = 0;
    for (const std::size_t at : {5U, 4U, 3U, 2U}) size = size << 8 | static_cast<unsigned char>(file[at]);
    return file.size() < size;
}

struct Format {
    std::string_view start;
    bool (*lacks_end)(std::string_view file);
};

constexpr Format kFormats[] = {{"\x89PNG\r\n\x1a\n", LacksPngEnd},
                               {"\xff\xd8\xff", LacksJpegEnd},
                               {"GIF8", LacksGifEnd},
                               {"BM", LacksBmpEnd}};

}  // namespace

bool IsCutShort(std::span<const std::byte> picture) {
    const std::string_view file(reinterpret_cast<const char*>(picture.data()), picture.size());
    for (const Format& format : kFormats) {
        if (file.starts_with(format.start)) return format.lacks_end(file);
    }
    return false;
}
