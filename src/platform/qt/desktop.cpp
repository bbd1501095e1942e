#include "platform/qt/desktop.h"

#include <QGuiApplication>
#include <QScreen>

#include "forms/geometry.h"

namespace onze {

namespace {

QSize ScreenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? (QSizeF(screen->size()) * screen->devicePixelRatio()).toSize() : QSize();
}

}  // namespace

int QtDesktop::EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) {
    if (mode != 0) return 0;
    record.dmPelsWidth = static_cast<std::uint32_t>(ScreenWidthInPixels());
    record.dmPelsHeight = static_cast<std::uint32_t>(ScreenHeightInPixels());
    return 1;
}

void QtDesktop::ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t) {
    fills_screen_ = record.dmPelsWidth == kPageWidth / kTwipsPerPixel &&
                    record.dmPelsHeight == kPageHeight / kTwipsPerPixel;
}

int QtDesktop::ScreenWidthInPixels() const {
    return ScreenSize().width();
}

int QtDesktop::ScreenHeightInPixels() const {
    return ScreenSize().height();
}

}  // namespace onze
