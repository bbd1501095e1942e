#pragma once

#include <filesystem>
#include <string_view>

#include "forms/platform.h"

// A file of the folder "datas" beside the executable.
inline std::filesystem::path DataFile(const Platform& platform, std::string_view name) {
    return platform.ExecutableFolder() / "datas" / name;
}
