#include "platform/windows/desktop.h"

#include <windows.h>

#include <cstddef>

namespace onze {

static_assert(sizeof(DisplayModeRecord) == sizeof(DEVMODEA));
static_assert(offsetof(DisplayModeRecord, dmFields) == offsetof(DEVMODEA, dmFields));
static_assert(offsetof(DisplayModeRecord, dmLogPixels) == offsetof(DEVMODEA, dmLogPixels));
static_assert(offsetof(DisplayModeRecord, dmBitsPerPel) == offsetof(DEVMODEA, dmBitsPerPel));
static_assert(offsetof(DisplayModeRecord, dmPelsWidth) == offsetof(DEVMODEA, dmPelsWidth));
static_assert(offsetof(DisplayModeRecord, dmPelsHeight) == offsetof(DEVMODEA, dmPelsHeight));
static_assert(offsetof(DisplayModeRecord, dmDisplayFrequency) == offsetof(DEVMODEA, dmDisplayFrequency));

Desktop::WindowHandle WindowsDesktop::FindWindowA(const char* class_name, const char* title) {
    return reinterpret_cast<WindowHandle>(::FindWindowA(class_name, title));
}

void WindowsDesktop::SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width,
                                  int height, std::uint32_t flags) {
    ::SetWindowPos(reinterpret_cast<HWND>(window), reinterpret_cast<HWND>(insert_after), x, y, width, height,
                   flags);
}

int WindowsDesktop::EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) {
    return ::EnumDisplaySettingsA(nullptr, static_cast<DWORD>(mode), reinterpret_cast<DEVMODEA*>(&record));
}

void WindowsDesktop::ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) {
    DisplayModeRecord asked = record;
    ::ChangeDisplaySettingsA(reinterpret_cast<DEVMODEA*>(&asked), flags);
}

int WindowsDesktop::ScreenWidthInPixels() const {
    return GetSystemMetrics(SM_CXSCREEN);
}

int WindowsDesktop::ScreenHeightInPixels() const {
    return GetSystemMetrics(SM_CYSCREEN);
}

}  // namespace onze
