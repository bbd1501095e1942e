#include "support/whole_picture.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/tiny_pictures.h"

namespace onze {

namespace {

using namespace std::string_literals;

// A loader that makes four letters of a file: what the file lacks it takes from a page before, or not at all.
std::shared_ptr<std::string> Load(std::span<const std::byte> bytes) {
    std::string text = "\2\2\2\2";
    if (bytes.empty()) return nullptr;
    for (std::size_t i = 0; i < std::min<std::size_t>(bytes.size(), 4); ++i)
        text[i] = static_cast<char>(bytes[i]);
    return std::make_shared<std::string>(text);
}

TEST(WholePicture, IsWhatMoreBytesDoNotChange) {
    const auto loaded = [](const std::string& file) {
        const auto picture = DecodeWhole(tiny::AsBytes(file), Load);
        return picture ? *picture : "";
    };
    EXPECT_EQ(loaded("whole"), "whol");
    EXPECT_EQ(loaded("four"), "four");
    EXPECT_EQ(loaded("cut"), "");
    EXPECT_EQ(loaded(""), "");
}

TEST(WholePicture, APngTellsItsEnd) {
    const std::string png(tiny::kPng.bytes);
    const auto ends = [](const std::string& file) { return HasPngEnd(tiny::AsBytes(file)); };
    EXPECT_TRUE(IsPng(tiny::AsBytes(png)));
    EXPECT_FALSE(IsPng(tiny::AsBytes(tiny::kGif.bytes)));
    EXPECT_TRUE(ends(png));
    EXPECT_TRUE(ends(png + "\0and more"s));
    EXPECT_FALSE(ends(png.substr(0, png.size() - 1)));
    EXPECT_FALSE(ends(png.substr(0, 8)));
    const std::string text_chunk = "\0\0\0\4tEXtIEND\1\2\3\4"s;
    EXPECT_FALSE(ends(png.substr(0, 33) + text_chunk));
    EXPECT_FALSE(ends(png.substr(0, 33) + "\xff\xff\xff\xffIDAT"s + png.substr(33)));
    EXPECT_EQ(DecodeWhole(tiny::AsBytes(png.substr(0, 40)), Load), nullptr);
}

}  // namespace

}  // namespace onze
