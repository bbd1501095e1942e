#pragma once

#include <filesystem>

#include "services/user_files.h"

namespace onze {

// Of the systems that have a file system; each brings the functions.

struct DataFolders {
    std::filesystem::path datas;
    std::filesystem::path
        own;          // of the user, for what the data folder does not take; empty where there is none
    std::string key;  // tells data folders apart
};

// The data folder beside the executable or, on Linux, where a package puts it: in share/onze-tables of the
// same prefix.
DataFolders FindDataFolders();

// Whether the user may put files into a folder.
bool TakesFiles(const std::filesystem::path& folder);

// The files of a folder, or none where it has no name. On Linux a file that is replaced keeps its
// permissions, and of a symbolic link the target is replaced. On Windows a file to write that another program
// holds is waited for, some seconds.
class FolderFiles final : public OwnFiles {
  public:
    explicit FolderFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::optional<std::vector<std::byte>> Read(std::string_view name) override;
    bool Replace(std::string_view name, std::span<const std::byte> bytes) override;
    std::string PlaceOf(std::string_view name) const override;
    bool Has(std::string_view name) const override;
    bool Remove(std::string_view name) override;

  private:
    std::filesystem::path folder_;
};

}  // namespace onze
