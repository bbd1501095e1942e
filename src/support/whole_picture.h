#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace onze {

// Whether a file is a PNG file, and whether such a file has its end. What follows the end does not matter.
bool IsPng(std::span<const std::byte> file);
bool HasPngEnd(std::span<const std::byte> file);
// The first text that a PNG file holds, where it has this keyword; else nothing.
std::string_view PngText(std::span<const std::byte> file, std::string_view keyword);

// The picture, a shared pointer, that decode() makes of a file; null when it can make none or when the file
// ends before its picture does. Loaders make up what a file lacks. A PNG file tells its end; in other formats
// what is made up changes with the bytes that follow.
template <class Decode>
auto DecodeWhole(std::span<const std::byte> file, Decode decode) {
    using Pointer = decltype(decode(file));
    if (IsPng(file)) return HasPngEnd(file) ? decode(file) : Pointer();
    Pointer picture = decode(file);
    if (!picture) return picture;
    std::vector<std::byte> longer(file.begin(), file.end());
    longer.insert(longer.end(), 1024, std::byte{0x55});
    const Pointer again = decode(std::span<const std::byte>(longer));
    return again && *again == *picture ? picture : Pointer();
}

}  // namespace onze
