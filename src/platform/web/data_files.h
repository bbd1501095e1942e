#pragma once

#include "services/user_files.h"

namespace onze {

// The data folder of the site, which takes no files.
class SiteFiles final : public DataFiles {
  public:
    std::optional<std::vector<std::byte>> Read(std::string_view name) override;
    bool Replace(std::string_view, std::span<const std::byte>) override { return false; }
    std::string PlaceOf(std::string_view name) const override { return "datas/" + std::string(name); }
};

// The one file that the browser keeps for its user: the counters. Where it keeps nothing, the page says so
// and has it as long as it is open.
class KeptFile final : public OwnFiles {
  public:
    std::optional<std::vector<std::byte>> Read(std::string_view name) override;
    bool Replace(std::string_view name, std::span<const std::byte> bytes) override;
    std::string PlaceOf(std::string_view name) const override;
    bool Has(std::string_view name) const override;
    bool Remove(std::string_view) override { return false; }
};

}  // namespace onze
