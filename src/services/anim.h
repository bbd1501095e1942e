#pragma once

#include <cstddef>
#include <span>

namespace onze {

// The strip of digit pictures, as a picture file, and the same drawn larger; built from art/output.
extern const std::span<const std::byte> kAnim;
extern const std::span<const std::byte> kLargerAnim;

}  // namespace onze
