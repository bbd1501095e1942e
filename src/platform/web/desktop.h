#pragma once

#include "services/desktop.h"

namespace onze {

// A page has no say in the display's size, nor in what lies around it.
class WebDesktop final : public Desktop {
  public:
    WindowHandle FindWindowA(const char*, const char*) override { return 0; }
    void SetWindowPos(WindowHandle, WindowHandle, int, int, int, int, std::uint32_t) override {}
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) override;
    void ChangeDisplaySettingsA(const DisplayModeRecord&, std::uint32_t) override {}
    int ScreenWidthInPixels() const override;
    int ScreenHeightInPixels() const override;
};

}  // namespace onze
