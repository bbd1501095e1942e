#include "platform/web/data_files.h"

#include "platform/web/browser.h"

namespace onze {

namespace {

// So many bytes, as something writes them; nothing where there are less than none.
template <class Write>
std::optional<std::vector<std::byte>> Filled(int size, Write write) {
    if (size < 0) return std::nullopt;
    std::vector<std::byte> bytes(static_cast<std::size_t>(size));
    write(bytes.data());
    return bytes;
}

}  // namespace

std::optional<std::vector<std::byte>> SiteFiles::Read(std::string_view name) {
    return Filled(browser::FileSize(name.data(), name.size()),
                  [name](std::byte* into) { browser::ReadFile(name.data(), name.size(), into); });
}

std::optional<std::vector<std::byte>> KeptFile::Read(std::string_view) {
    return Filled(browser::KeptSize(), [](std::byte* into) { browser::ReadKept(into); });
}

bool KeptFile::Replace(std::string_view, std::span<const std::byte> bytes) {
    return browser::Keep(bytes.data(), bytes.size());
}

std::string KeptFile::PlaceOf(std::string_view name) const {
    return "les données du site, " + std::string(name);
}

bool KeptFile::Has(std::string_view) const {
    return browser::KeptSize() >= 0;
}

}  // namespace onze
