#include "support/headless_host.h"

#include <sstream>
#include <stdexcept>

namespace onze {

std::optional<std::vector<std::byte>> HeadlessHost::Read(std::string_view name) {
    calls.push_back("read " + std::string(name));
    return NullHost::Read(name);
}

bool HeadlessHost::Replace(std::string_view name, std::span<const std::byte> bytes) {
    calls.push_back("write " + std::string(name));
    return !disk_full && NullHost::Replace(name, bytes);
}

void HeadlessHost::Start(std::string_view name) {
    calls.push_back("start " + std::string(name));
    sounds.emplace_back(name);
}

Desktop::WindowHandle HeadlessHost::FindWindowA(const char* class_name, const char* title) {
    calls.push_back("find <" + std::string(class_name) + "> <" + title + ">");
    return std::string(class_name) == "Shell_traywnd" ? taskbar : 0;
}

void HeadlessHost::SetWindowPos(WindowHandle window, WindowHandle insert_after, int x, int y, int width,
                                int height, std::uint32_t flags) {
    std::ostringstream call;
    call << "place " << window << " after " << insert_after << " at " << x << "," << y << "," << width << ","
         << height << " flags " << std::hex << flags;
    calls.push_back(call.str());
}

int HeadlessHost::EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) {
    calls.push_back("mode " + std::to_string(mode));
    if (mode > modes) throw std::logic_error("asked for modes past the last");
    if (mode == modes) return 0x10000;  // only the low 16 bits of a result count
    record.dmBitsPerPel = static_cast<std::uint32_t>(8 * (mode + 1));
    return 1;
}

void HeadlessHost::ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t flags) {
    std::ostringstream call;
    call << "change " << record.dmPelsWidth << "x" << record.dmPelsHeight << "x" << record.dmBitsPerPel
         << " fields " << std::hex << record.dmFields << " flags " << flags;
    calls.push_back(call.str());
    screen_width = static_cast<int>(record.dmPelsWidth);
    screen_height = static_cast<int>(record.dmPelsHeight);
}

}  // namespace onze
