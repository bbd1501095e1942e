#pragma once

#include <optional>
#include <string_view>

#include "forms/key.h"

namespace onze {

// What a key means to the program, if anything: its name and its place on the keyboard, as browsers tell
// them.
std::optional<KeyPress> KeyPressOf(std::string_view key, std::string_view code, bool shift, bool control,
                                   bool repeated);

}  // namespace onze
