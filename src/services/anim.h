#pragma once

#include <cstddef>
#include <span>

namespace onze {

// The strip of digit pictures, as a picture file; built from art/output/anim.png.
extern const std::span<const std::byte> kAnim;

}  // namespace onze
