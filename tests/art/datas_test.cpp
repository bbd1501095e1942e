// The data folder as delivered: pictures of the right size, sounds that are safe to play and well levelled.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr int kRate = 44100;

std::filesystem::path Datas() {
    return DATAS_DIR;
}

Bytes Read(const std::string& name) {
    std::ifstream file(Datas() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::uint32_t Little(const Bytes& bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) value = value << 8 | bytes.at(at + i);
    return value;
}

std::uint32_t Big(const Bytes& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) value = value << 8 | bytes.at(at + i);
    return value;
}

std::string Text(const Bytes& bytes, std::size_t at, std::size_t size) {
    std::string text;
    for (std::size_t i = 0; i < size; ++i) text += static_cast<char>(bytes.at(at + i));
    return text;
}

// Also checks the header: canonical PCM, 16 bits, mono, 44.1 kHz, sizes that agree with the file's.
std::vector<double> Samples(const std::string& name) {
    const Bytes wave = Read(name);
    EXPECT_EQ(Text(wave, 0, 4) + Text(wave, 8, 8) + Text(wave, 36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(Little(wave, 4, 4), wave.size() - 8);
    EXPECT_EQ(Little(wave, 16, 4), 16u);
    EXPECT_EQ(Little(wave, 20, 2), 1u) << "PCM";
    EXPECT_EQ(Little(wave, 22, 2), 1u) << "mono";
    EXPECT_EQ(Little(wave, 24, 4), std::uint32_t{kRate});
    EXPECT_EQ(Little(wave, 28, 4), std::uint32_t{kRate * 2});
    EXPECT_EQ(Little(wave, 32, 2), 2u);
    EXPECT_EQ(Little(wave, 34, 2), 16u);
    EXPECT_EQ(Little(wave, 40, 4), wave.size() - 44);
    std::vector<double> samples;
    for (std::size_t at = 44; at + 1 < wave.size(); at += 2)
        samples.push_back(static_cast<std::int16_t>(Little(wave, at, 2)) / 32768.0);
    return samples;
}

double Peak(const std::vector<double>& samples, std::size_t from, std::size_t to) {
    double peak = 0;
    for (std::size_t i = from; i < std::min(to, samples.size()); ++i)
        peak = std::max(peak, std::abs(samples[i]));
    return peak;
}

double Rms(const std::vector<double>& samples) {
    double sum = 0;
    for (const double sample : samples) sum += sample * sample;
    return std::sqrt(sum / static_cast<double>(samples.size()));
}

double Decibels(double level) {
    return 20 * std::log10(level);
}

struct Family {
    const char* ending;
    int count;
    double shortest, longest;  // seconds
};

constexpr Family kFamilies[] = {{"", 10, .030, .120}, {".vic", 4, .6, 1.8}, {".def", 4, .4, 1.2}};

void CheckSound(const std::vector<double>& samples, const Family& family) {
    const double seconds = static_cast<double>(samples.size()) / kRate;
    EXPECT_GE(seconds, family.shortest);
    EXPECT_LE(seconds, family.longest);
    const double peak = Peak(samples, 0, samples.size());
    EXPECT_LE(Decibels(peak), -3.0);
    EXPECT_GE(Decibels(peak), -20.0) << "too soft to be heard";
    const std::size_t five_ms = kRate / 200;
    EXPECT_GE(Peak(samples, 0, five_ms), .1 * peak) << "starts late";
    // A step from or to silence is heard as a click.
    EXPECT_LE(std::abs(samples.front()), .002);
    EXPECT_LE(std::abs(samples.back()), .002);
    EXPECT_LE(Peak(samples, 0, 8), .1 * peak + .01) << "starts with a step";
    EXPECT_LE(Peak(samples, samples.size() - five_ms / 5, samples.size()), .01) << "is cut off";
}

// The pitch, as the strongest frequency of a click on a grid of quarter tones.
double Pitch(const std::vector<double>& samples) {
    double best = 0, strongest = 0;
    for (double frequency = 400; frequency < 1600; frequency *= std::pow(2, 1 / 24.0)) {
        double re = 0, im = 0;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const double angle = 2 * std::numbers::pi * frequency * static_cast<double>(i) / kRate;
            re += samples[i] * std::cos(angle);
            im += samples[i] * std::sin(angle);
        }
        if (std::hypot(re, im) > strongest) {
            strongest = std::hypot(re, im);
            best = frequency;
        }
    }
    return best;
}

TEST(Datas, SoundsAreSafeAndEachFamilyIsLevelled) {
    for (const Family& family : kFamilies) {
        double softest = 0, loudest = -100;
        for (int i = 1; i <= family.count; ++i) {
            const std::string name = std::to_string(i) + family.ending;
            SCOPED_TRACE(name);
            const std::vector<double> samples = Samples(name);
            ASSERT_FALSE(samples.empty());
            CheckSound(samples, family);
            softest = std::min(softest, Decibels(Rms(samples)));
            loudest = std::max(loudest, Decibels(Rms(samples)));
        }
        EXPECT_LE(loudest - softest, 3.0) << "family *" << family.ending;
    }
}

TEST(Datas, ClicksClimb) {
    double below = 0;
    for (int i = 1; i <= 10; ++i) {
        const double pitch = Pitch(Samples(std::to_string(i)));
        EXPECT_GT(pitch, below) << "click " << i;
        below = pitch;
    }
}

TEST(Datas, NoSoundOfAFamilyIsThereTwice) {
    for (const Family& family : kFamilies)
        for (int i = 2; i <= family.count; ++i)
            for (int j = 1; j < i; ++j)
                EXPECT_NE(Read(std::to_string(i) + family.ending), Read(std::to_string(j) + family.ending))
                    << i << family.ending;
}

TEST(Datas, PicturesFillTheScreenAndAreOpaque) {
    for (int name = 11; name <= 16; ++name) {
        SCOPED_TRACE(name);
        const Bytes png = Read(std::to_string(name));
        ASSERT_GT(png.size(), 64u);
        EXPECT_EQ(Text(png, 1, 3), "PNG");
        EXPECT_EQ(Big(png, 16), 640u);
        EXPECT_EQ(Big(png, 20), 480u);
        EXPECT_TRUE(png[25] == 2 || png[25] == 3) << "colour without alpha";
        EXPECT_EQ(Text(png, 0, png.size()).find("tRNS"), std::string::npos);
    }
}

TEST(Datas, CountersAreDeliveredAsAZeroedRecord) {
    Bytes expected(120, 0);
    for (const std::size_t tag : {0u, 14u, 18u, 22u}) expected[tag] = 2;
    std::fill_n(expected.begin() + 4, 10, static_cast<unsigned char>(' '));
    EXPECT_EQ(Read("18"), expected);
}

TEST(Datas, WeighsLittleAndHoldsNothingElse) {
    std::uintmax_t weight = 0, files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(Datas())) {
        weight += entry.file_size();
        ++files;
    }
    EXPECT_LT(weight, 1'500'000u);
    EXPECT_EQ(files, 6u + 1u + 18u);
}

}  // namespace
