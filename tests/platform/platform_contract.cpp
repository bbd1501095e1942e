#include "platform/platform_contract.h"

#include <array>
#include <chrono>
#include <fstream>
#include <random>
#include <thread>
#include <tuple>

#include "support/run_time_error.h"
#include "support/tiny_pictures.h"

namespace {

namespace fs = std::filesystem;

constexpr Font kPlain{.height = 8.25_pt, .bold = false};
constexpr Font kBold{.height = 8.25_pt, .bold = true};
constexpr std::string_view kText = "Cliquez sur Continuer pour un autre exercice.";

// The text of the run-time error that an action throws; empty when it throws none.
template <class Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "";
}

bool Holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// Every character whole, and each of them one that fonts can show.
bool IsPlainUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        if (length == 0 || i + length > text.size()) return false;
        for (std::size_t k = 1; k < length; ++k) {
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return false;
        }
        if (lead < ' ') return false;
        i += length;
    }
    return !Holds(text, "\u200e") && !Holds(text, "\u200f") && !Holds(text, "\u202f");
}

// A wave file of 524 seconds of silence.
std::string SilentWave() {
    const std::string header(
        "RIFF\x24\0\x40\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1f\0\0\x40\x1f\0\0\1\0\x08\0data\0\0\x40\0", 44);
    return header + std::string(1 << 22, '\x80');
}

}  // namespace

PlatformContract::PlatformContract() : platform_(GetParam()()) {
    const auto unique = std::to_string(std::random_device{}());
    folder_ = fs::temp_directory_path() / fs::path(u8"onze tables été ");
    folder_ += unique;
    fs::create_directories(folder_);
}

PlatformContract::~PlatformContract() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

fs::path PlatformContract::Place(std::string_view name) const {
    return folder_ / fs::path(std::u8string(name.begin(), name.end()));
}

fs::path PlatformContract::Write(std::string_view name, std::string_view bytes) const {
    fs::path file = Place(name);
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
}

std::string PlatformContract::Read(const fs::path& file) const {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

int PlatformContract::FilesInFolder() const {
    return static_cast<int>(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealPlatformContract);

TEST_P(RealPlatformContract, PicturesAreKnownByTheirContent) {
    for (const TinyPicture& tiny_picture : tiny::kAll) {
        SCOPED_TRACE(tiny_picture.format);
        const PicturePtr from_file = platform().LoadPicture(Write("15", tiny_picture.bytes));
        const PicturePtr from_memory = platform().LoadPicture(tiny::AsBytes(tiny_picture.bytes));
        for (const PicturePtr& picture : {from_file, from_memory}) {
            ASSERT_TRUE(picture);
            EXPECT_EQ(picture->WidthInPixels(), tiny_picture.width);
            EXPECT_EQ(picture->HeightInPixels(), tiny_picture.height);
        }
    }
}

// Some programs write a few bytes more, or in a BMP file's head a length that is a little off.
TEST_P(RealPlatformContract, AWholePictureIsReadWhateverFollows) {
    for (const TinyPicture& tiny_picture : tiny::kAll) {
        for (const std::string& rest : {std::string(2, '\0'), std::string("\r\n et encore")}) {
            const PicturePtr picture =
                platform().LoadPicture(tiny::AsBytes(std::string(tiny_picture.bytes) + rest));
            EXPECT_EQ(picture->WidthInPixels(), tiny_picture.width) << tiny_picture.format;
        }
    }
    std::string off(tiny::kBmp.bytes);
    for (const char length : {'\0', 'L', 'P'}) {
        off[2] = length;
        EXPECT_EQ(platform().LoadPicture(tiny::AsBytes(off))->WidthInPixels(), tiny::kBmp.width);
    }
}

TEST_P(RealPlatformContract, ALoadedPictureLeavesItsFileFree) {
    const fs::path file = Write("15", tiny::kGif.bytes);
    const PicturePtr kept = platform().LoadPicture(file);
    std::error_code error;
    EXPECT_TRUE(fs::remove(file, error)) << error.message();
    EXPECT_EQ(kept->WidthInPixels(), tiny::kGif.width);
}

TEST_P(RealPlatformContract, AnUnreadablePictureIsNamed) {
    EXPECT_TRUE(Holds(ErrorOf([&] { platform().LoadPicture(Place("16 à voir")); }), "16 à voir"));
    EXPECT_NE(ErrorOf([&] { platform().LoadPicture(Place("")); }), "");
    for (const TinyPicture& tiny_picture : tiny::kAll) {
        SCOPED_TRACE(tiny_picture.format);
        const std::string_view whole = tiny_picture.bytes;
        for (const std::string_view bytes :
             {whole.substr(0, 0), whole.substr(0, 12), whole.substr(0, whole.size() / 2),
              whole.substr(0, whole.size() - 8), whole.substr(2), std::string_view("illisible")}) {
            const fs::path file = Write("13 é", bytes);
            EXPECT_TRUE(Holds(ErrorOf([&] { platform().LoadPicture(file); }), "13 é")) << bytes.size();
            EXPECT_NE(ErrorOf([&] { platform().LoadPicture(tiny::AsBytes(bytes)); }), "") << bytes.size();
        }
    }
}

TEST_P(PlatformContract, AClipLiesInsideItsPicture) {
    const PicturePtr strip = platform().LoadPicture(tiny::AsBytes(tiny::kPng.bytes));
    const auto clip = [&](int x, int y, int width, int height) {
        return platform().ClipPicture(strip, x, y, width, height);
    };
    const PicturePtr corner = clip(2, 2, 3, 2);
    EXPECT_EQ(corner->WidthInPixels(), 3);
    EXPECT_EQ(corner->HeightInPixels(), 2);
    EXPECT_EQ(clip(0, 0, 5, 4)->WidthInPixels(), 5);
    const std::array<int, 4> outside[] = {
        {-1, 0, 3, 2}, {0, -1, 3, 2}, {3, 0, 3, 2}, {0, 3, 3, 2}, {0, 0, 0, 2}};
    for (const auto& box : outside) EXPECT_NE(ErrorOf([&] { std::apply(clip, box); }), "");
}

TEST_P(PlatformContract, TextsAreMeasured) {
    const auto width = [&](std::string_view text, const Font& font = kPlain) {
        return platform().MeasureText(text, font).width;
    };
    EXPECT_EQ(width(""), 0);
    EXPECT_EQ(platform().MeasureText("", kPlain).height, platform().MeasureText("Éq", kPlain).height);
    EXPECT_GE(platform().MeasureText("", kPlain).height, kPlain.height);
    EXPECT_GT(width("7 X 8 ="), width("7 X 8"));
    EXPECT_GT(width(" 7"), width("7"));
    EXPECT_GT(width(kText, kBold), width(kText));
    // Letters of two bytes are one letter wide.
    EXPECT_NEAR(width("élève à Noël"), width("eleve a Noel"), width("e"));
    EXPECT_GT(width("« œuvre » ≠ ½"), width("« œuvre »"));
}

TEST_P(PlatformContract, TextsShrinkWithTheirFont) {
    for (const bool bold : {false, true}) {
        Size larger = platform().MeasureText(kText, {40.0_pt, bold});
        for (int height = 40.0_pt; height >= 4.0_pt; height -= 0.25_pt) {
            const Size size = platform().MeasureText(kText, {height, bold});
            EXPECT_LE(size.width, larger.width) << height << (bold ? " bold" : "");
            EXPECT_LE(size.height, larger.height + 1_px) << height << (bold ? " bold" : "");
            EXPECT_LE(size.height, height * 3 / 2 + 1_px) << height << (bold ? " bold" : "");
            larger = size;
        }
    }
    EXPECT_LT(platform().MeasureText(kText, {4.0_pt}).width * 3,
              platform().MeasureText(kText, kPlain).width * 2);
}

TEST_P(PlatformContract, SoundsNeverFailAndAreNotWaitedFor) {
    const std::string wave = SilentWave();
    const auto started = std::chrono::steady_clock::now();
    platform().StopSound();
    for (const fs::path& file : {Place("absent"), Place(""), Write("vide", ""),
                                 Write("bruit", "ceci n'est pas un son"), Write("coupé", wave.substr(0, 30)),
                                 Write("faux", wave.substr(0, 4) + "\xff\xff\xff\x7f" + wave.substr(8)),
                                 Write("5", wave), Write("1.vic", wave)}) {
        EXPECT_NO_THROW(platform().StartSound(file)) << file;
        EXPECT_NO_THROW(platform().StopSound()) << file;
    }
    platform().StartSound(Place("5"));
    platform().StartSound(Place("1.vic"));
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(500));
}

TEST_P(PlatformContract, AFileGetsItsNewContent) {
    const std::string old_bytes("\0\r\n\x1a old", 8);
    const std::string new_bytes("\x02\0\n\r\n\x1a\xff new, and longer", 23);
    const fs::path file = Place("18 à garder");
    for (const std::string& bytes : {old_bytes, new_bytes, std::string(), old_bytes}) {
        platform().ReplaceContent(file, tiny::AsBytes(bytes));
        EXPECT_EQ(Read(file), bytes);
        EXPECT_EQ(FilesInFolder(), 1);
    }
}

TEST_P(PlatformContract, AFailedReplacementChangesNothing) {
    const fs::path occupied = Place("occupé");
    fs::create_directories(occupied);
    std::ofstream(occupied / "18") << "old";
    const auto replace = [&](const fs::path& file) {
        return ErrorOf([&] { platform().ReplaceContent(file, tiny::AsBytes("new")); });
    };
    EXPECT_TRUE(Holds(replace(occupied), "occupé"));
    EXPECT_EQ(Read(occupied / "18"), "old");
    EXPECT_TRUE(Holds(replace(Place("nulle part") / "18"), "nulle part"));
    EXPECT_EQ(FilesInFolder(), 1);
}

// A neighbour's name would be too long here.
TEST_P(RealPlatformContract, WhereNothingFitsBesideTheFileItIsWrittenInPlace) {
    const fs::path file = Write(std::string(250, 'n'), "old, and longer");
    platform().ReplaceContent(file, tiny::AsBytes("new"));
    EXPECT_EQ(Read(file), "new, and longer");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_P(PlatformContract, SystemCallsAnswer) {
    const Platform::WindowHandle nothing = platform().FindWindowA("OnzeTablesNoSuchClass", "");
    EXPECT_EQ(nothing, 0U);
    EXPECT_NO_THROW(platform().SetWindowPos(nothing, 0, 0, 0, 0, 0, 0x40));
    EXPECT_GT(platform().ScreenWidthInPixels(), 0);
    EXPECT_GT(platform().ScreenHeightInPixels(), 0);

    DisplayModeRecord record{};
    std::int32_t mode = 0;
    while (mode < 100000 && (platform().EnumDisplaySettingsA(mode, record) & 0xFFFF) != 0) ++mode;
    EXPECT_GE(mode, 1);
    EXPECT_LT(mode, 100000);
}

TEST_P(PlatformContract, TimeIsTold) {
    for (const std::string& text : {platform().LongDate(), platform().TimeOfDay()}) {
        EXPECT_GE(text.size(), 4U);
        EXPECT_TRUE(IsPlainUtf8(text)) << text;
    }
    std::int64_t before = platform().TickCount();
    for (int i = 0; i < 10000; ++i) {
        const std::int64_t now = platform().TickCount();
        ASSERT_GE(now, before);
        before = now;
    }
}

TEST_P(RealPlatformContract, ItsClockCountsMilliseconds) {
    using Clock = std::chrono::steady_clock;
    const auto milliseconds = [](Clock::duration time) {
        return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    };
    const auto at_first = Clock::now();
    const std::int64_t before = platform().TickCount();
    const auto begin = Clock::now();
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    const auto end = Clock::now();
    const std::int64_t passed = platform().TickCount() - before;
    EXPECT_GE(passed, milliseconds(end - begin) - 1);
    EXPECT_LE(passed, milliseconds(Clock::now() - at_first) + 1);
}
