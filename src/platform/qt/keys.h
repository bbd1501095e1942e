#pragma once

#include <QKeyEvent>
#include <optional>

#include "forms/key.h"

namespace onze {

// What a key means to the program, if anything.
std::optional<KeyPress> KeyPressOf(const QKeyEvent& event);

}  // namespace onze
