#include "platform/host_contract.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <random>
#include <thread>

#include "forms/clock.h"
#include "forms/text_measure.h"
#include "services/calendar.h"
#include "services/data_files.h"
#include "services/desktop.h"
#include "services/pictures.h"
#include "services/sound_player.h"
#include "support/tiny_pictures.h"

namespace onze {

namespace {

namespace fs = std::filesystem;

constexpr Font kPlain{.height = 8.25_pt, .bold = false};
constexpr Font kBold{.height = 8.25_pt, .bold = true};
constexpr std::string_view kText = "Cliquez sur Continuer pour un autre exercice.";

bool Holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// A wave file of 524 seconds of silence.
std::string SilentWave() {
    const std::string header(
        "RIFF\x24\0\x40\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1f\0\0\x40\x1f\0\0\1\0\x08\0data\0\0\x40\0", 44);
    return header + std::string(1 << 22, '\x80');
}

}  // namespace

HostContract::HostContract()
    : folder([] {
          fs::path unique = fs::temp_directory_path() / fs::path(u8"onze tables été ");
          unique += std::to_string(std::random_device{}());
          fs::create_directories(unique);
          return unique;
      }()),
      owner(GetParam()(folder)),
      host(owner->host()) {}

HostContract::~HostContract() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

fs::path HostContract::Place(std::string_view name) const {
    return folder / fs::path(std::u8string(name.begin(), name.end()));
}

void HostContract::Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(Place(name), std::ios::binary) << bytes;
}

std::string HostContract::Read(std::string_view name) const {
    std::ifstream stream(Place(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

int HostContract::FilesInFolder() const {
    return static_cast<int>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

PicturePtr HostContract::Decode(std::string_view bytes) {
    return host.pictures.Decode("15", tiny::AsBytes(bytes));
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealHostContract);

TEST_P(RealHostContract, PicturesAreKnownByTheirContent) {
    for (const TinyPicture& tiny_picture : tiny::kAll) {
        // Some programs write a few bytes more.
        for (const std::string& rest : {std::string(), std::string(2, '\0'), std::string("\r\n et encore")}) {
            SCOPED_TRACE(tiny_picture.format + rest);
            const PicturePtr picture = Decode(std::string(tiny_picture.bytes) + rest);
            ASSERT_TRUE(picture);
            EXPECT_EQ(picture->WidthInPixels(), tiny_picture.width);
            EXPECT_EQ(picture->HeightInPixels(), tiny_picture.height);
        }
    }
    std::string length_a_little_off(tiny::kBmp.bytes);
    for (const char length : {'\0', 'L', 'P'}) {
        length_a_little_off[2] = length;
        EXPECT_TRUE(Decode(length_a_little_off));
    }
}

TEST_P(RealHostContract, APictureThatIsNotWholeIsNone) {
    EXPECT_FALSE(Decode("illisible"));
    for (const TinyPicture& tiny_picture : tiny::kAll) {
        const std::string_view whole = tiny_picture.bytes;
        for (const std::string_view bytes :
             {whole.substr(0, 0), whole.substr(0, 12), whole.substr(0, whole.size() / 2),
              whole.substr(0, whole.size() - 8), whole.substr(2)}) {
            EXPECT_FALSE(Decode(bytes)) << tiny_picture.format << bytes.size();
        }
    }
}

TEST_P(HostContract, AClipIsAPictureOfItsSize) {
    const PicturePtr strip = Decode(tiny::kPng.bytes);
    const PicturePtr corner = host.pictures.Clip(*strip, 2, 2, 3, 2);
    EXPECT_EQ(corner->WidthInPixels(), 3);
    EXPECT_EQ(corner->HeightInPixels(), 2);
    EXPECT_EQ(host.pictures.Clip(*strip, 0, 0, 5, 4)->WidthInPixels(), 5);
}

TEST_P(HostContract, TextsAreMeasured) {
    const auto width = [&](std::string_view text, const Font& font = kPlain) {
        return host.text_measure.MeasureText(text, font).width;
    };
    EXPECT_EQ(width(""), 0);
    EXPECT_EQ(host.text_measure.MeasureText("", kPlain).height,
              host.text_measure.MeasureText("Éq", kPlain).height);
    EXPECT_GE(host.text_measure.MeasureText("", kPlain).height, kPlain.height);
    EXPECT_GT(width("7 X 8 ="), width("7 X 8"));
    EXPECT_GT(width(" 7"), width("7"));
    EXPECT_GT(width(kText, kBold), width(kText));
    // Letters of two bytes are one letter wide.
    EXPECT_NEAR(width("élève à Noël"), width("eleve a Noel"), width("e"));
    EXPECT_GT(width("« œuvre » ≠ ½"), width("« œuvre »"));
}

TEST_P(HostContract, TextsShrinkWithTheirFont) {
    for (const bool bold : {false, true}) {
        Size larger = host.text_measure.MeasureText(kText, {40.0_pt, bold});
        for (int height = 40.0_pt; height >= 4.0_pt; height -= 0.25_pt) {
            const Size size = host.text_measure.MeasureText(kText, {height, bold});
            EXPECT_LE(size.width, larger.width) << height << (bold ? " bold" : "");
            EXPECT_LE(size.height, larger.height + 1_px) << height << (bold ? " bold" : "");
            EXPECT_LE(size.height, height * 3 / 2 + 1_px) << height << (bold ? " bold" : "");
            larger = size;
        }
    }
    EXPECT_LT(host.text_measure.MeasureText(kText, {4.0_pt}).width * 3,
              host.text_measure.MeasureText(kText, kPlain).width * 2);
}

TEST_P(HostContract, SoundsNeverFailAndAreNotWaitedFor) {
    const std::string wave = SilentWave();
    const auto started = std::chrono::steady_clock::now();
    Write("vide", "");
    Write("bruit", "ceci n'est pas un son");
    Write("coupe", wave.substr(0, 30));
    Write("faux", wave.substr(0, 4) + "\xff\xff\xff\x7f" + wave.substr(8));
    Write("5", wave);
    Write("1.vic", wave);
    host.sound_player.Stop();
    for (const char* name : {"absent", "", "vide", "bruit", "coupe", "faux", "5", "1.vic", "5"}) {
        EXPECT_NO_THROW(host.sound_player.Start(name)) << name;
        EXPECT_NO_THROW(host.sound_player.Stop()) << name;
    }
    host.sound_player.Start("5");
    host.sound_player.Start("1.vic");
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(500));
}

TEST_P(HostContract, AFileGetsItsNewContent) {
    const std::string old_bytes("\0\r\n\x1a old", 8);
    const std::string new_bytes("\x02\0\n\r\n\x1a\xff new, and longer", 23);
    for (const std::string& bytes : {old_bytes, new_bytes, std::string(), old_bytes}) {
        EXPECT_TRUE(host.files.Replace("18", tiny::AsBytes(bytes)));
        const auto read = host.files.Read("18");
        ASSERT_TRUE(read);
        EXPECT_TRUE(std::ranges::equal(*read, tiny::AsBytes(bytes)));
    }
}

TEST_P(RealHostContract, AFileLiesInItsFolder) {
    Write("18", "old");
    EXPECT_TRUE(host.files.Read("18"));
    EXPECT_TRUE(host.files.Replace("18", tiny::AsBytes("new")));
    EXPECT_EQ(Read("18"), "new");
    EXPECT_EQ(FilesInFolder(), 1);
    EXPECT_TRUE(Holds(host.files.PlaceOf("18"), "onze tables été "));
    EXPECT_TRUE(host.files.PlaceOf("18").ends_with("18"));
    std::error_code error;
    EXPECT_TRUE(fs::remove(Place("18"), error)) << error.message();
    EXPECT_FALSE(host.files.Read("18"));
}

TEST_P(RealHostContract, WhatCannotBeDoneIsTold) {
    fs::create_directories(Place("18"));
    Write("18/inside", "old");
    EXPECT_FALSE(host.files.Read("18"));
    EXPECT_FALSE(host.files.Replace("18", tiny::AsBytes("new")));
    EXPECT_EQ(Read("18/inside"), "old");
    EXPECT_FALSE(host.files.Replace("nowhere/18", tiny::AsBytes("new")));
    EXPECT_EQ(FilesInFolder(), 1);
}

// A neighbour's name would be too long here.
TEST_P(RealHostContract, WhereNothingFitsBesideTheFileItIsWrittenInPlace) {
    const std::string name(250, 'n');
    Write(name, "old, and longer");
    EXPECT_TRUE(host.files.Replace(name, tiny::AsBytes("new")));
    EXPECT_EQ(Read(name), "new, and longer");
    EXPECT_EQ(FilesInFolder(), 1);
}

TEST_P(HostContract, TheDesktopAnswers) {
    Desktop& desktop = host.desktop;
    const Desktop::WindowHandle nothing = desktop.FindWindowA("OnzeTablesNoSuchClass", "");
    EXPECT_EQ(nothing, 0U);
    EXPECT_NO_THROW(desktop.SetWindowPos(nothing, 0, 0, 0, 0, 0, 0x40));
    EXPECT_GT(desktop.ScreenWidthInPixels(), 0);
    EXPECT_GT(desktop.ScreenHeightInPixels(), 0);

    DisplayModeRecord record{};
    std::int32_t mode = 0;
    while (mode < 100000 && (desktop.EnumDisplaySettingsA(mode, record) & 0xFFFF) != 0) ++mode;
    EXPECT_GE(mode, 1);
    EXPECT_LT(mode, 100000);
}

// Without the marks that fonts lack.
TEST_P(HostContract, TimeIsTold) {
    for (const std::string& text : {host.calendar.LongDate(), host.calendar.TimeOfDay()}) {
        EXPECT_GE(text.size(), 4U);
        for (const char* mark : {"\u200e", "\u200f", "\u202f"}) EXPECT_FALSE(Holds(text, mark)) << text;
    }
}

TEST_P(RealHostContract, ItsClockCountsMilliseconds) {
    using Steady = std::chrono::steady_clock;
    const auto milliseconds = [](Steady::duration time) {
        return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    };
    const auto at_first = Steady::now();
    const std::int64_t before = host.clock.TickCount();
    const auto begin = Steady::now();
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    const auto end = Steady::now();
    const std::int64_t passed = host.clock.TickCount() - before;
    EXPECT_GE(passed, milliseconds(end - begin) - 1);
    EXPECT_LE(passed, milliseconds(Steady::now() - at_first) + 1);
}

}  // namespace onze
