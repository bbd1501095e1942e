#pragma once

#include <filesystem>

#include "services/data_files.h"

namespace onze {

// The data folder: the one beside the path that the program was started by, where there is one, else the one
// beside the executable file itself. So a user can have counters of his own beside a symbolic link to the
// installed program.
std::filesystem::path FindDataFolder(const std::filesystem::path& started_as);

// The files of a folder. A file that is replaced keeps its permissions; of a symbolic link the target is
// replaced.
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
