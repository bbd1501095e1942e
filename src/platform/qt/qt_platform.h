#pragma once

#include "forms/platform.h"
#include "platform/qt/page_fonts.h"
#include "platform/qt/sound_player.h"

// The folder that holds the data folder: the one of the path that the program was started by, when the data
// folder lies there, else the one of the executable file itself. So a user can have counters of his own
// beside a symbolic link to the installed program.
std::filesystem::path FindExecutableFolder(const std::filesystem::path& started_as);

// Needs a QGuiApplication.
class QtPlatform final : public Platform {
  public:
    explicit QtPlatform(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::filesystem::path ExecutableFolder() const override { return folder_; }
    PicturePtr LoadPicture(const std::filesystem::path& file) override;
    PicturePtr LoadPicture(std::span<const std::byte> bytes) override;
    PicturePtr ClipPicture(const PicturePtr& picture, int x, int y, int width, int height) override;
    Size MeasureText(std::string_view line, const Font& font) override { return fonts_.Measure(line, font); }
    void StopSound() override { sounds_.Stop(); }
    void StartSound(const std::filesystem::path& file) override { sounds_.Start(file); }
    void ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) override;
    WindowHandle FindWindowA(const char*, const char*) override { return 0; }
    void SetWindowPos(WindowHandle, WindowHandle, int, int, int, int, std::uint32_t) override {}
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) override;
    void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) override;
    int ScreenWidthInPixels() const override;
    int ScreenHeightInPixels() const override;
    std::string LongDate() const override;
    std::string TimeOfDay() const override;
    std::int64_t TickCount() const override;
    void EndProgram() override;

    PageFonts& fonts() { return fonts_; }
    // Whether a display of the page's own size was asked for: the page then fills the screen, whose real size
    // never changes.
    bool fills_screen() const { return fills_screen_; }
    // Whether the program has ended: nothing that still comes in counts.
    bool ended() const { return ended_; }

  private:
    std::filesystem::path folder_;
    PageFonts fonts_;
    SoundPlayer sounds_;
    bool fills_screen_ = false;
    bool ended_ = false;
};
