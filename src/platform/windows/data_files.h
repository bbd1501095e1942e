#pragma once

#include <filesystem>

#include "services/data_files.h"

namespace onze {

// The data folder, beside the executable.
std::filesystem::path FindDataFolder();

// The files of a folder.
class FolderFiles final : public DataFiles {
  public:
    explicit FolderFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::optional<std::vector<std::byte>> Read(std::string_view name) override;
    bool Replace(std::string_view name, std::span<const std::byte> bytes) override;
    std::string PlaceOf(std::string_view name) const override;

  private:
    std::filesystem::path folder_;
};

}  // namespace onze
