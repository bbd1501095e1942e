#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "forms/clock.h"
#include "forms/text_measure.h"
#include "services/calendar.h"
#include "services/data_files.h"
#include "services/desktop.h"
#include "services/pictures.h"
#include "services/sound_player.h"
#include "shell/host.h"

namespace onze {

// A picture of no pixels that knows where it was taken from.
struct NullPicture final : Picture {
    NullPicture(std::string from, int at_x, int at_y, int w, int h)
        : source(std::move(from)), x(at_x), y(at_y), width(w), height(h) {}
    int WidthInPixels() const override { return width; }
    int HeightInPixels() const override { return height; }

    std::string source;
    int x, y, width, height;
};

// A host of nothing but memory: it shows nothing and is silent, its clock stands, its desktop is one mode,
// and of a PNG file it reads the size alone.
class NullHost : public TextMeasure,
                 public Clock,
                 public DataFiles,
                 public Pictures,
                 public SoundPlayer,
                 public Desktop,
                 public Calendar {
  public:
    NullHost() {
        files["18"] = std::string("\2\0\0\0          \2\0\0\0\2\0\0\0\2\0\0\0", 26) + std::string(94, '\0');
        for (const char* page : {"11", "12", "13", "14", "15", "16"})
            files[page] = std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\2\x80\0\0\1\xe0", 24);
    }
    operator Host() { return {*this, *this, *this, *this, *this, *this, *this}; }

    // A letter is half as wide as the font is high, a bold one a little more, a line 6/5 as high.
    Size MeasureText(std::string_view line, const Font& font) override {
        const auto letters =
            std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xC0) != 0x80; });
        return {static_cast<int>(letters) * font.height * (font.bold ? 11 : 10) / 20, font.height * 6 / 5};
    }
    std::int64_t TickCount() const override { return 0; }

    std::optional<std::vector<std::byte>> Read(std::string_view name) override {
        const auto file = files.find(std::string(name));
        if (file == files.end()) return std::nullopt;
        const auto bytes = std::as_bytes(std::span(file->second));
        return std::vector<std::byte>(bytes.begin(), bytes.end());
    }
    bool Replace(std::string_view name, std::span<const std::byte> bytes) override {
        files[std::string(name)].assign(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        return true;
    }
    std::string PlaceOf(std::string_view name) const override { return "datas/" + std::string(name); }

    PicturePtr Decode(std::string_view name, std::span<const std::byte> file) override {
        if (file.size() < 24 || file[1] != std::byte{'P'}) return nullptr;
        const auto number = [file](std::size_t at) {
            return std::to_integer<int>(file[at]) << 8 | std::to_integer<int>(file[at + 1]);
        };
        return std::make_shared<NullPicture>(std::string(name), 0, 0, number(18), number(22));
    }
    PicturePtr Clip(const Picture& picture, int x, int y, int width, int height) override {
        return std::make_shared<NullPicture>(static_cast<const NullPicture&>(picture).source, x, y, width,
                                             height);
    }

    void Stop() override {}
    void Start(std::string_view) override {}

    WindowHandle FindWindowA(const char*, const char*) override { return 0; }
    void SetWindowPos(WindowHandle, WindowHandle, int, int, int, int, std::uint32_t) override {}
    int EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord&) override { return mode == 0 ? 1 : 0; }
    void ChangeDisplaySettingsA(const DisplayModeRecord&, std::uint32_t) override {}
    int ScreenWidthInPixels() const override { return 640; }
    int ScreenHeightInPixels() const override { return 480; }

    std::string LongDate() const override { return "samedi 21 novembre 2026"; }
    std::string TimeOfDay() const override { return "10:20:30"; }

    std::map<std::string, std::string> files;  // of the data folder, by name
};

}  // namespace onze
