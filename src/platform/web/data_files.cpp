#include "platform/web/data_files.h"

#include "platform/web/browser.h"

namespace onze {

std::optional<std::vector<std::byte>> SiteFiles::Read(std::string_view name) {
    const int size = browser::FileSize(name.data(), name.size());
    if (size < 0) return std::nullopt;
    std::vector<std::byte> bytes(static_cast<std::size_t>(size));
    browser::ReadFile(name.data(), name.size(), bytes.data());
    return bytes;
}

std::optional<std::vector<std::byte>> KeptFile::Read(std::string_view) {
    const int size = browser::KeptSize();
    if (size < 0) return std::nullopt;
    std::vector<std::byte> bytes(static_cast<std::size_t>(size));
    browser::ReadKept(bytes.data());
    return bytes;
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
