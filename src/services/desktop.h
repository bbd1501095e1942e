#pragma once

#include <cstdint>

namespace onze {

// A display mode, in the layout of the system's own record (156 bytes). Only the fields named here are looked
// at or written by this program; the others travel from EnumDisplaySettingsA to ChangeDisplaySettingsA as
// they are.
struct DisplayModeRecord {
    std::uint8_t device_name[32];
    std::uint8_t version_and_size[8];
    std::uint32_t dmFields;
    std::uint8_t settings[26];
    std::uint8_t form_name[32];
    std::uint16_t dmLogPixels;
    std::uint32_t dmBitsPerPel;
    std::uint32_t dmPelsWidth;
    std::uint32_t dmPelsHeight;
    std::uint32_t dmDisplayFlags;
    std::uint32_t dmDisplayFrequency;
    std::uint8_t reserved[32];
};
static_assert(sizeof(DisplayModeRecord) == 156);

// The desktop around the program. A host without such calls answers "no such window" and offers the one mode
// that it is in.
class Desktop {
  public:
    using WindowHandle = std::uintptr_t;  // 0: none

    virtual ~Desktop() = default;

    virtual WindowHandle FindWindowA(const char* class_name, const char* title) = 0;
    virtual void SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width,
                              int height, std::uint32_t flags) = 0;
    // The mode's record, or a result whose low 16 bits are zero when there is no mode of that number.
    virtual int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) = 0;
    virtual void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) = 0;
    virtual int ScreenWidthInPixels() const = 0;
    virtual int ScreenHeightInPixels() const = 0;
};

}  // namespace onze
