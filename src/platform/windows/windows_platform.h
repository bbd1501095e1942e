#pragma once

#include "forms/platform.h"
#include "platform/windows/font_book.h"
#include "platform/windows/gdi_plus.h"
#include "platform/windows/sound_player.h"

// The program's platform on Windows 7 and later.
class WindowsPlatform final : public Platform {
  public:
    std::filesystem::path ExecutableFolder() const override;
    PicturePtr LoadPicture(const std::filesystem::path& file) override;
    PicturePtr LoadPicture(std::span<const std::byte> bytes) override;
    PicturePtr ClipPicture(const PicturePtr& picture, int x, int y, int width, int height) override;
    Size MeasureText(std::string_view line, const Font& font) override;
    void StopSound() override { sound_.Stop(); }
    void StartSound(const std::filesystem::path& file) override { sound_.Start(file); }
    void ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) override;
    WindowHandle FindWindowA(const char* class_name, const char* title) override;
    void SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width, int height,
                      std::uint32_t flags) override;
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) override;
    void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) override;
    int ScreenWidthInPixels() const override { return GetSystemMetrics(SM_CXSCREEN); }
    int ScreenHeightInPixels() const override { return GetSystemMetrics(SM_CYSCREEN); }
    std::string LongDate() const override;
    std::string TimeOfDay() const override;
    std::int64_t TickCount() const override;
    void EndProgram() override { ended_ = true; }

    // Whether the program was told to end.
    bool ended() const { return ended_; }
    FontBook& fonts() { return fonts_; }

  private:
    GdiPlus gdi_plus_;
    FontBook fonts_;
    SoundPlayer sound_;
    bool ended_ = false;
};
