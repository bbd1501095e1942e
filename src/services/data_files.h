#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace onze {

// The files of the folder "datas", by name.
class DataFiles {
  public:
    virtual ~DataFiles() = default;

    // The bytes of a file; nothing when it is missing or cannot be read.
    virtual std::optional<std::vector<std::byte>> Read(std::string_view name) = 0;

    // Replaces the content of a file, or creates it, and tells whether that was done. Whatever happens
    // meanwhile, the file holds its old bytes or the new ones, whole. Where nothing can be made beside the
    // file its bytes are overwritten in place, without that promise; a longer file keeps its end.
    virtual bool Replace(std::string_view name, std::span<const std::byte> bytes) = 0;

    // Where a file lies, for people to read.
    virtual std::string PlaceOf(std::string_view name) const = 0;
};

}  // namespace onze
