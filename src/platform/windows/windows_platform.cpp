#include "platform/windows/windows_platform.h"

#include <chrono>
#include <cstddef>

#include "platform/windows/files.h"
#include "platform/windows/gdi_picture.h"
#include "platform/windows/text.h"
#include "support/run_time_error.h"

static_assert(sizeof(DisplayModeRecord) == sizeof(DEVMODEA));
static_assert(offsetof(DisplayModeRecord, dmFields) == offsetof(DEVMODEA, dmFields));
static_assert(offsetof(DisplayModeRecord, dmLogPixels) == offsetof(DEVMODEA, dmLogPixels));
static_assert(offsetof(DisplayModeRecord, dmBitsPerPel) == offsetof(DEVMODEA, dmBitsPerPel));
static_assert(offsetof(DisplayModeRecord, dmPelsWidth) == offsetof(DEVMODEA, dmPelsWidth));
static_assert(offsetof(DisplayModeRecord, dmPelsHeight) == offsetof(DEVMODEA, dmPelsHeight));
static_assert(offsetof(DisplayModeRecord, dmDisplayFrequency) == offsetof(DEVMODEA, dmDisplayFrequency));

std::filesystem::path WindowsPlatform::ExecutableFolder() const {
    std::wstring name(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()))) ==
           name.size()) {
        name.resize(2 * name.size());
    }
    name.resize(length);
    return std::filesystem::path(name).parent_path();
}

PicturePtr WindowsPlatform::LoadPicture(const std::filesystem::path& file) {
    const auto bytes = ReadWholeFile(file);
    PicturePtr picture = bytes ? DecodePicture(*bytes) : nullptr;
    if (!picture) throw FileError("Image introuvable ou illisible", file);
    return picture;
}

PicturePtr WindowsPlatform::LoadPicture(std::span<const std::byte> bytes) {
    PicturePtr picture = DecodePicture(bytes);
    if (!picture) throw RunTimeError("Image du programme illisible.");
    return picture;
}

PicturePtr WindowsPlatform::ClipPicture(const PicturePtr& picture, int x, int y, int width, int height) {
    const auto& whole = static_cast<const GdiPicture&>(*picture);
    if (x < 0 || y < 0 || width <= 0 || height <= 0 || x + width > whole.WidthInPixels() ||
        y + height > whole.HeightInPixels()) {
        throw RunTimeError("Découpe hors de l'image.");
    }
    return whole.Clip(x, y, width, height);
}

Size WindowsPlatform::MeasureText(std::string_view line, const Font& font) {
    const SIZE pixels = fonts_.Measure(ToWide(line), font);
    return {static_cast<int>(pixels.cx) * kTwipsPerPixel, static_cast<int>(pixels.cy) * kTwipsPerPixel};
}

void WindowsPlatform::ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) {
    if (!ReplaceWholeFile(file, bytes)) throw FileError("Fichier impossible à écrire", file);
}

Platform::WindowHandle WindowsPlatform::FindWindowA(const char* class_name, const char* title) {
    return reinterpret_cast<WindowHandle>(::FindWindowA(class_name, title));
}

void WindowsPlatform::SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width,
                                   int height, std::uint32_t flags) {
    ::SetWindowPos(reinterpret_cast<HWND>(window), reinterpret_cast<HWND>(insert_after), x, y, width, height,
                   flags);
}

int WindowsPlatform::EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) {
    return ::EnumDisplaySettingsA(nullptr, static_cast<DWORD>(mode), reinterpret_cast<DEVMODEA*>(&record));
}

void WindowsPlatform::ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) {
    DisplayModeRecord asked = record;
    ::ChangeDisplaySettingsA(reinterpret_cast<DEVMODEA*>(&asked), flags);
}

std::string WindowsPlatform::LongDate() const {
    return LongDateText();
}

std::string WindowsPlatform::TimeOfDay() const {
    return TimeOfDayText();
}

std::int64_t WindowsPlatform::TickCount() const {
    const auto since_start = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since_start).count();
}
