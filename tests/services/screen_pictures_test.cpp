#include "services/screen_pictures.h"

#include <gtest/gtest.h>

#include "services/picture_clip.h"
#include "support/fingerprint.h"
#include "support/headless_host.h"

namespace onze {

namespace {

// A PNG file, as far as its size and its text.
std::string Larger(std::string_view text, char height = '\xa0') {
    const std::string header("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\7\x80\0\0\5", 23);
    const auto length = static_cast<char>(text.size());
    return header + height + std::string(9, '\0') + std::string("\0\0\0", 3) + length + "tEXt" +
           std::string(text) + "checksum";
}

TEST(LargerPictures, AreReadWhenAskedForAndWhereTheyBelong) {
    const HeadlessHost delivered;
    const std::string mark = std::string("Enlarges\0", 9) + Fingerprint(delivered.files.at("15"));
    const struct {
        const char* what;
        std::string larger, small;
        bool taken;
    } cases[] = {
        {"as delivered", Larger(mark), "", true},
        {"none", "", "", false},
        {"of another small one", Larger(mark), "\1", false},
        {"other text", Larger(std::string("Title\0", 6) + mark), "", false},
        {"keyword alone", Larger("Enlarges"), "", false},
        {"not of its size", Larger(mark, '\xa1'), "", false},
        {"cut short", Larger(mark).substr(0, 44), "", false},
    };
    for (const auto& [what, larger, small, taken] : cases) {
        SCOPED_TRACE(what);
        HeadlessHost host;
        host.files["15"] += small;
        if (!larger.empty()) host.files["15.3x"] = larger;
        const ScreenPictures pictures(host, host);
        EXPECT_EQ(host.calls.size(), 6U) << "read too early";
        EXPECT_EQ(SourceOf(pictures.Find("15")->ReadLarger()), taken ? "15.3x" : "");
        EXPECT_EQ(host.calls.back(), "read 15.3x");
    }
}

TEST(LargerPictures, OfDigitsAreCutFromTheLargerStrip) {
    HeadlessHost host;
    const ScreenPictures pictures(host, host);
    const PicturePtr larger = PictureClip{host, pictures.Find("anim"), 351, 1, 61, 57}.Clip()->ReadLarger();
    ASSERT_EQ(SourceOf(larger), "anim.3x");
    const auto& cut = static_cast<const NullPicture&>(*larger);
    EXPECT_EQ((Rect{cut.x, cut.y, cut.width, cut.height}), (Rect{1053, 3, 183, 171}));
}

}  // namespace

}  // namespace onze
