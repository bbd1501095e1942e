#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "forms/drawing.h"

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

// What the portable program asks of the system it runs on. Texts are UTF-8. Pictures and files that cannot be
// read throw RunTimeError with a French text that names the file; nothing else here fails.
class Platform {
  public:
    using WindowHandle = std::uintptr_t;  // 0: none

    virtual ~Platform() = default;

    // The folder of the executable.
    virtual std::filesystem::path ExecutableFolder() const = 0;

    // Any format that the system's loader knows, recognised by content.
    virtual PicturePtr LoadPicture(const std::filesystem::path& file) = 0;
    virtual PicturePtr LoadPicture(std::span<const std::byte> bytes) = 0;
    // The part of a picture, in its pixels. Throws RunTimeError when it does not lie inside the picture
    // whole.
    virtual PicturePtr ClipPicture(const PicturePtr& picture, int x, int y, int width, int height) = 0;

    // The cell of one line of text: its advance width and the line height, in twips.
    virtual Size MeasureText(std::string_view line, const Font& font) = 0;

    // Sounds: at most one plays. Starting returns at once; a file that cannot be played is silence.
    virtual void StopSound() = 0;
    virtual void StartSound(const std::filesystem::path& file) = 0;

    // Replaces the content of a file (or creates it): whatever happens meanwhile, the file holds its old
    // bytes or the new ones, whole. Where nothing can be made beside the file its bytes are overwritten in
    // place. Throws RunTimeError when that cannot be done either.
    virtual void ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) = 0;

    // The declared system calls of start-up and quit. A system without them answers "no such window" and
    // offers the one mode it is in.
    virtual WindowHandle FindWindowA(const char* class_name, const char* title) = 0;
    virtual void SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width,
                              int height, std::uint32_t flags) = 0;
    // The mode's record, or a result whose low 16 bits are zero when there is no mode of that number.
    virtual int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) = 0;
    virtual void ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) = 0;
    virtual int ScreenWidthInPixels() const = 0;
    virtual int ScreenHeightInPixels() const = 0;

    // The present day and time of day, in the system's long date and time formats.
    virtual std::string LongDate() const = 0;
    virtual std::string TimeOfDay() const = 0;
    // Milliseconds since some moment before the start of the program; never goes back.
    virtual std::int64_t TickCount() const = 0;

    // Ends the program with exit status 0 once the present event is done; nothing is saved or put back.
    virtual void EndProgram() = 0;
};
