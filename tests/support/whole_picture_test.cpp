#include "support/whole_picture.h"

#include <gtest/gtest.h>

#include <string>

#include "support/tiny_pictures.h"

namespace {

using namespace std::string_literals;

// What cameras and other programs put around a picture does not hide its end, nor stand for it.
TEST(WholePicture, EndsWhereItsOwnDataDo) {
    const auto is_cut = [](const std::string& bytes) { return IsCutShort(tiny::AsBytes(bytes)); };
    for (const TinyPicture& picture : tiny::kAll) {
        SCOPED_TRACE(picture.format);
        const std::string whole(picture.bytes);
        EXPECT_FALSE(is_cut(whole + "\0\0"s));
        EXPECT_TRUE(is_cut(whole.substr(0, whole.size() - 1)));
    }
    const std::string jpeg(tiny::kJpeg.bytes);
    const std::string with_preview = jpeg.substr(0, 20) + jpeg + jpeg.substr(20);
    EXPECT_FALSE(is_cut(with_preview));
    EXPECT_TRUE(is_cut(with_preview.substr(0, with_preview.size() - 2)));
    EXPECT_FALSE(is_cut("of another format"));
    EXPECT_FALSE(is_cut(""));
}

}  // namespace
