#pragma once

#include <string>
#include <vector>

#include "support/null_host.h"

namespace onze {

// Where a picture was taken from: its name, or nothing where there is none.
inline std::string SourceOf(const PicturePtr& picture) {
    return picture ? static_cast<const NullPicture&>(*picture).source : "";
}

// The host of the tests: it records what is asked of it, its clock moves when the test moves it, its display
// obeys, its texts are what the test says.
class HeadlessHost : public NullHost {
  public:
    std::int64_t TickCount() const override { return now; }
    std::optional<std::vector<std::byte>> Read(std::string_view name) override;
    bool Replace(std::string_view name, std::span<const std::byte> bytes) override;
    void Stop() override { calls.emplace_back("stop"); }
    void Start(std::string_view name) override;
    WindowHandle FindWindowA(const char* class_name, const char* title) override;
    void SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width, int height,
                      std::uint32_t flags) override;
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) override;
    void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) override;
    int ScreenWidthInPixels() const override { return screen_width; }
    int ScreenHeightInPixels() const override { return screen_height; }
    std::string LongDate() const override { return long_date; }
    std::string TimeOfDay() const override { return time_of_day; }

    std::vector<std::string> calls;   // everything that was asked of the system, in order
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

}  // namespace onze
