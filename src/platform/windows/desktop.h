#pragma once

#include "services/desktop.h"

namespace onze {

class WindowsDesktop final : public Desktop {
  public:
    WindowHandle FindWindowA(const char* class_name, const char* title) override;
    void SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width, int height,
                      std::uint32_t flags) override;
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) override;
    void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) override;
    int ScreenWidthInPixels() const override;
    int ScreenHeightInPixels() const override;
};

}  // namespace onze
