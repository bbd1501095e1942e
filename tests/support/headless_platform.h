#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/platform.h"

// A picture of no pixels that knows where it was taken from.
class HeadlessPicture final : public Picture {
  public:
    HeadlessPicture(std::string from, int at_x, int at_y, int w, int h)
        : source(std::move(from)), x(at_x), y(at_y), width(w), height(h) {}
    int WidthInPixels() const override { return width; }
    int HeightInPixels() const override { return height; }

    std::string source;
    int x, y, width, height;
};

// Where a picture was taken from: its file, "memory", or nothing where there is none.
inline std::string SourceOf(const PicturePtr& picture) {
    return picture ? static_cast<const HeadlessPicture&>(*picture).source : "";
}

// A platform of the tests: it records sounds and system calls, its clock moves when the test moves it, its
// display obeys, its texts are what the test says. Its folder is a temporary one with a data folder in it.
class HeadlessPlatform : public Platform {
  public:
    HeadlessPlatform();
    ~HeadlessPlatform() override;

    std::filesystem::path ExecutableFolder() const override { return folder; }
    PicturePtr LoadPicture(const std::filesystem::path& file) override;
    PicturePtr LoadPicture(std::span<const std::byte> bytes) override;
    PicturePtr ClipPicture(const PicturePtr& picture, int x, int y, int width, int height) override;
    Size MeasureText(std::string_view line, const Font& font) override;
    void StopSound() override { calls.emplace_back("stop"); }
    void StartSound(const std::filesystem::path& file) override;
    void ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) override;
    WindowHandle FindWindowA(const char* class_name, const char* title) override;
    void SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width, int height,
                      std::uint32_t flags) override;
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) override;
    void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) override;
    int ScreenWidthInPixels() const override { return screen_width; }
    int ScreenHeightInPixels() const override { return screen_height; }
    std::string LongDate() const override { return long_date; }
    std::string TimeOfDay() const override { return time_of_day; }
    std::int64_t TickCount() const override { return now; }
    void EndProgram() override { calls.emplace_back("end"); }

    // Writes a file of the data folder.
    void WriteData(const std::string& name, const std::string& bytes) const;
    std::string ReadData(const std::string& name) const;

    std::filesystem::path folder;
    std::vector<std::string>
        calls;  // everything that was asked of the system, in order, with the files' places
    std::vector<std::string> sounds;  // the names of the sound files started, in order
    bool disk_full = false;
    WindowHandle taskbar = 77;
    std::int64_t now = 1000;
    int screen_width = 1024;
    int screen_height = 768;
    int modes = 3;
    std::string long_date = "samedi 21 novembre 2026";
    std::string time_of_day = "10:20:30";
};
