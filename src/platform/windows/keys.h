#pragma once

#include <windows.h>

#include <optional>

#include "forms/key.h"

namespace onze {

// What the key of a WM_KEYDOWN means to the program, if anything.
std::optional<KeyPress> KeyPressOf(WPARAM wparam, LPARAM lparam);

}  // namespace onze
