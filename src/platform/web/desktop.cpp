#include "platform/web/desktop.h"

#include "platform/web/browser.h"

namespace onze {

int WebDesktop::EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) {
    if (mode != 0) return 0;
    record.dmPelsWidth = static_cast<std::uint32_t>(ScreenWidthInPixels());
    record.dmPelsHeight = static_cast<std::uint32_t>(ScreenHeightInPixels());
    return 1;
}

int WebDesktop::ScreenWidthInPixels() const {
    return browser::ScreenWidth();
}

int WebDesktop::ScreenHeightInPixels() const {
    return browser::ScreenHeight();
}

}  // namespace onze
