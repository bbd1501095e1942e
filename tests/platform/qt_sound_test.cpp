#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <thread>
#include <vector>

#include "platform/qt/sound_player.h"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int kRate = 44100;

// The player's sound goes into a file instead of a device.
class QtSound : public testing::Test {
  protected:
    QtSound() {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", heard_.c_str(), 1);
    }
    ~QtSound() override {
        unsetenv("SDL_AUDIODRIVER");
        fs::remove_all(folder_);
    }

    // A wave file of one constant level, which tells it from others.
    fs::path Wave(std::int16_t level, std::chrono::milliseconds length, int rate = kRate) const {
        const auto bytes = static_cast<std::uint32_t>(rate * length.count() / 1000 * 2);
        const fs::path file = folder_ / ("son é " + std::to_string(level));
        std::ofstream stream(file, std::ios::binary);
        const auto number = [&stream](std::uint32_t value, int size) {
            for (int i = 0; i < size; ++i) stream.put(static_cast<char>(value >> (8 * i)));
        };
        stream << "RIFF";
        number(36 + bytes, 4);
        stream << "WAVEfmt ";
        number(16, 4);
        number(1, 2);
        number(1, 2);
        number(static_cast<std::uint32_t>(rate), 4);
        number(static_cast<std::uint32_t>(rate * 2), 4);
        number(2, 2);
        number(16, 2);
        stream << "data";
        number(bytes, 4);
        for (std::uint32_t i = 0; i < bytes / 2; ++i) number(static_cast<std::uint16_t>(level), 2);
        return file;
    }

    // How long each level was heard, in order, silence left out.
    std::vector<std::pair<int, std::chrono::milliseconds>> Heard() const {
        std::ifstream stream(heard_, std::ios::binary);
        std::vector<std::pair<int, int>> runs;
        std::int16_t sample = 0;
        while (stream.read(reinterpret_cast<char*>(&sample), sizeof sample)) {
            if (sample == 0) continue;
            if (runs.empty() || runs.back().first != sample) runs.emplace_back(sample, 0);
            ++runs.back().second;
        }
        std::vector<std::pair<int, std::chrono::milliseconds>> heard;
        for (const auto& [level, samples] : runs) heard.emplace_back(level, samples * 1000ms / kRate);
        return heard;
    }

    const fs::path folder_ = fs::temp_directory_path() / ("onze tables sons " + std::to_string(getpid()));
    const fs::path heard_ = folder_ / "heard";
};

TEST_F(QtSound, ANewSoundCutsOffTheOneBefore) {
    {
        SoundPlayer player;
        player.Start(Wave(1000, 5000ms));
        std::this_thread::sleep_for(600ms);
        player.Start(Wave(2000, 100ms));
        std::this_thread::sleep_for(600ms);
        player.Start(Wave(3000, 5000ms));
        std::this_thread::sleep_for(300ms);
        player.Stop();
        std::this_thread::sleep_for(200ms);
    }
    const auto heard = Heard();
    ASSERT_EQ(heard.size(), 3U);
    EXPECT_EQ(heard[0].first, 1000);
    EXPECT_LT(heard[0].second, 4000ms);
    EXPECT_EQ(heard[1].first, 2000);
    EXPECT_NEAR(static_cast<double>(heard[1].second.count()), 100, 1);
    EXPECT_EQ(heard[2].first, 3000);
    EXPECT_LT(heard[2].second, 4000ms);
}

TEST_F(QtSound, NoDeviceIsOpenedBeforeASoundThatCanBePlayed) {
    {
        SoundPlayer player;
        player.Stop();
        player.Start(folder_ / "absent");
        std::ofstream(folder_ / "bruit") << "ceci n'est pas un son";
        player.Start(folder_ / "bruit");
        std::this_thread::sleep_for(200ms);
    }
    EXPECT_FALSE(fs::exists(heard_));
}

TEST_F(QtSound, WithoutADeviceThereIsSilenceAtOnce) {
    setenv("SDL_AUDIODRIVER", "none of that name", 1);
    const auto started = std::chrono::steady_clock::now();
    {
        SoundPlayer player;
        for (int i = 0; i < 100; ++i) player.Start(Wave(1000, 100ms));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - started, 2s);
    EXPECT_FALSE(fs::exists(heard_));
}

}  // namespace
