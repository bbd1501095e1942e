#pragma once

#include "services/desktop.h"

namespace onze {

// A desktop whose display never changes its size. What asks for a display of the page's own size gets a page
// that fills the screen. Needs a QGuiApplication.
class QtDesktop final : public Desktop {
  public:
    WindowHandle FindWindowA(const char*, const char*) override { return 0; }
    void SetWindowPos(WindowHandle, WindowHandle, int, int, int, int, std::uint32_t) override {}
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) override;
    void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) override;
    int ScreenWidthInPixels() const override;
    int ScreenHeightInPixels() const override;

    bool fills_screen() const { return fills_screen_; }

  private:
    bool fills_screen_ = false;
};

}  // namespace onze
