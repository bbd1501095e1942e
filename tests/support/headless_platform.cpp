#include "support/headless_platform.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

#include "support/run_time_error.h"

namespace {

std::filesystem::path NewFolder() {
    static int number = 0;
    const auto unique = std::to_string(std::random_device{}()) + "-" + std::to_string(++number);
    auto folder = std::filesystem::temp_directory_path() / ("onze tables é " + unique);
    std::filesystem::create_directories(folder / "datas");
    return folder;
}

std::string ReadWhole(const std::filesystem::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

std::string Within(const std::filesystem::path& folder, const std::filesystem::path& file) {
    return file.lexically_relative(folder).generic_string();
}

// Of a PNG file this platform reads the size alone, which stands behind the mark and a name.
constexpr std::size_t kMark = 16;
constexpr std::string_view kPagePicture("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\2\x80\0\0\1\xe0", 24);

PicturePtr ReadPicture(const std::string& source, std::string_view bytes) {
    if (bytes.size() < kPagePicture.size() || !bytes.starts_with(kPagePicture.substr(0, kMark)))
        return nullptr;
    const auto two_bytes = [bytes](std::size_t at) {
        return static_cast<std::uint8_t>(bytes[at]) << 8 | static_cast<std::uint8_t>(bytes[at + 1]);
    };
    return std::make_shared<HeadlessPicture>(source, 0, 0, two_bytes(18), two_bytes(22));
}

}  // namespace

HeadlessPlatform::HeadlessPlatform() : folder(NewFolder()) {
    WriteData("18", std::string("\2\0\0\0          \2\0\0\0\2\0\0\0\2\0\0\0", 26) + std::string(94, '\0'));
    for (const char* picture : {"11", "12", "13", "14", "15", "16"})
        WriteData(picture, std::string(kPagePicture));
}

HeadlessPlatform::~HeadlessPlatform() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

PicturePtr HeadlessPlatform::LoadPicture(const std::filesystem::path& file) {
    calls.push_back("load " + Within(folder, file));
    PicturePtr picture = ReadPicture(file.filename().string(), ReadWhole(file));
    if (!picture) throw FileError("Image introuvable ou illisible", file);
    return picture;
}

PicturePtr HeadlessPlatform::LoadPicture(std::span<const std::byte> bytes) {
    PicturePtr picture = ReadPicture("memory", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    if (!picture) throw RunTimeError("Image illisible.");
    return picture;
}

PicturePtr HeadlessPlatform::ClipPicture(const PicturePtr& picture, int x, int y, int width, int height) {
    const auto& whole = static_cast<const HeadlessPicture&>(*picture);
    if (x < 0 || y < 0 || width <= 0 || height <= 0 || x + width > whole.width || y + height > whole.height) {
        throw RunTimeError("Découpe hors de l'image.");
    }
    return std::make_shared<HeadlessPicture>(whole.source, x, y, width, height);
}

Size HeadlessPlatform::MeasureText(std::string_view line, const Font& font) {
    const auto letters = std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xC0) != 0x80; });
    return {static_cast<int>(letters) * font.height * (font.bold ? 11 : 10) / 20, font.height * 6 / 5};
}

void HeadlessPlatform::StartSound(const std::filesystem::path& file) {
    calls.push_back("start " + Within(folder, file));
    sounds.push_back(file.filename().string());
}

void HeadlessPlatform::ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) {
    calls.push_back("write " + Within(folder, file));
    std::ofstream stream(disk_full ? std::filesystem::path() : file, std::ios::binary);
    for (const std::byte byte : bytes) stream.put(static_cast<char>(byte));
    if (!stream) throw FileError("Fichier impossible à écrire", file);
}

Platform::WindowHandle HeadlessPlatform::FindWindowA(const char* class_name, const char* title) {
    calls.push_back("find <" + std::string(class_name) + "> <" + title + ">");
    return std::string(class_name) == "Shell_traywnd" ? taskbar : 0;
}

void HeadlessPlatform::SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width,
                                    int height, std::uint32_t flags) {
    std::ostringstream call;
    call << "place " << window << " after " << insert_after << " at " << x << "," << y << "," << width << ","
         << height << " flags " << std::hex << flags;
    calls.push_back(call.str());
}

int HeadlessPlatform::EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) {
    calls.push_back("mode " + std::to_string(mode));
    if (mode > modes) throw std::logic_error("asked for modes past the last");
    if (mode == modes) return 0x10000;  // only the low 16 bits of a result count
    record.dmBitsPerPel = static_cast<std::uint32_t>(8 * (mode + 1));
    return 1;
}

void HeadlessPlatform::ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) {
    std::ostringstream call;
    call << "change " << record.dmPelsWidth << "x" << record.dmPelsHeight << "x" << record.dmBitsPerPel
         << " fields " << std::hex << record.dmFields << " flags " << flags;
    calls.push_back(call.str());
    screen_width = static_cast<int>(record.dmPelsWidth);
    screen_height = static_cast<int>(record.dmPelsHeight);
}

void HeadlessPlatform::WriteData(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder / "datas" / name, std::ios::binary) << bytes;
}

std::string HeadlessPlatform::ReadData(const std::string& name) const {
    return ReadWhole(folder / "datas" / name);
}
