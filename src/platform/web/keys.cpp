#include "platform/web/keys.h"

namespace onze {

namespace {

constexpr struct {
    std::string_view name;
    Key key;
} kKeys[] = {{"ArrowUp", Key::kUp},       {"ArrowDown", Key::kDown}, {"ArrowLeft", Key::kLeft},
             {"ArrowRight", Key::kRight}, {"PageUp", Key::kPageUp},  {"PageDown", Key::kPageDown},
             {"Home", Key::kHome},        {"End", Key::kEnd},        {"Enter", Key::kClick},
             {" ", Key::kClick},          {"Escape", Key::kEscape},  {"Tab", Key::kTab}};

constexpr std::string_view kDigitKey = "Digit";

char CharacterOf(std::string_view key) {
    return key.size() == 1 && key[0] > ' ' && key[0] < 127 ? key[0] : '\0';
}

char DigitOn(std::string_view code) {
    return code.size() == kDigitKey.size() + 1 && code.starts_with(kDigitKey) ? code.back() : '\0';
}

}  // namespace

std::optional<KeyPress> KeyPressOf(std::string_view key, std::string_view code, bool shift, bool control,
                                   bool repeated) {
    if (control) {
        if (key != "p" && key != "P") return std::nullopt;
        return KeyPress{.key = Key::kPrint, .repeated = repeated};
    }
    for (const auto& [name, known] : kKeys) {
        if (name != key) continue;
        return KeyPress{.key = known == Key::kTab && shift ? Key::kBackTab : known, .repeated = repeated};
    }
    const KeyPress press{
        .key = Key::kCharacter, .character = CharacterOf(key), .digit = DigitOn(code), .repeated = repeated};
    if (press.character == 0 && press.digit == 0) return std::nullopt;
    return press;
}

}  // namespace onze
