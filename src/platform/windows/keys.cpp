#include "platform/windows/keys.h"

#include <array>

namespace onze {

namespace {

constexpr LPARAM kHeld = 1 << 30;

constexpr struct {
    WPARAM code;
    Key key;
} kKeys[] = {{VK_UP, Key::kUp},       {VK_DOWN, Key::kDown},    {VK_LEFT, Key::kLeft},
             {VK_RIGHT, Key::kRight}, {VK_PRIOR, Key::kPageUp}, {VK_NEXT, Key::kPageDown},
             {VK_HOME, Key::kHome},   {VK_END, Key::kEnd},      {VK_RETURN, Key::kClick},
             {VK_SPACE, Key::kClick}, {VK_ESCAPE, Key::kEscape}};

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

char CharacterOf(WPARAM code, LPARAM lparam) {
    std::array<BYTE, 256> state{};
    std::array<wchar_t, 4> text{};
    GetKeyboardState(state.data());
    const auto scan_code = static_cast<UINT>(lparam >> 16 & 0xFF);
    const int length = ToUnicode(static_cast<UINT>(code), scan_code, state.data(), text.data(),
                                 static_cast<int>(text.size()), 0);
    return length == 1 && text[0] > L' ' && text[0] < 127 ? static_cast<char>(text[0]) : '\0';
}

}  // namespace

std::optional<KeyPress> KeyPressOf(WPARAM wparam, LPARAM lparam) {
    KeyPress press{.key = Key::kCharacter, .repeated = (lparam & kHeld) != 0};
    if (IsDown(VK_CONTROL)) {
        press.key = Key::kPrint;
        return wparam == 'P' && !IsDown(VK_MENU) ? std::optional(press) : std::nullopt;
    }
    if (wparam == VK_TAB) press.key = IsDown(VK_SHIFT) ? Key::kBackTab : Key::kTab;
    for (const auto& [code, key] : kKeys) {
        if (code == wparam) press.key = key;
    }
    if (press.key != Key::kCharacter) return press;
    press.character = CharacterOf(wparam, lparam);
    if (wparam >= '0' && wparam <= '9') press.digit = static_cast<char>(wparam);
    if (press.character == 0 && press.digit == 0) return std::nullopt;
    return press;
}

}  // namespace onze
