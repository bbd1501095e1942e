#include "platform/qt/keys.h"

#include <QHash>

namespace onze {

namespace {

// The digits' keys stand in one row on every keyboard, from 1 to 0.
constexpr quint32 kFirstDigitKey = 10;
constexpr quint32 kLastDigitKey = 19;

char DigitOn(quint32 scan_code) {
    if (scan_code < kFirstDigitKey || scan_code > kLastDigitKey) return 0;
    return static_cast<char>('0' + (scan_code - kFirstDigitKey + 1) % 10);
}

char CharacterOf(const QString& text) {
    const ushort code = text.size() == 1 ? text.front().unicode() : 0;
    return code > ' ' && code < 127 ? static_cast<char>(code) : '\0';
}

}  // namespace

std::optional<KeyPress> KeyPressOf(const QKeyEvent& event) {
    static const QHash<int, Key> kKeys{
        {Qt::Key_Tab, Key::kTab},       {Qt::Key_Backtab, Key::kBackTab},   {Qt::Key_Up, Key::kUp},
        {Qt::Key_Down, Key::kDown},     {Qt::Key_Left, Key::kLeft},         {Qt::Key_Right, Key::kRight},
        {Qt::Key_PageUp, Key::kPageUp}, {Qt::Key_PageDown, Key::kPageDown}, {Qt::Key_Home, Key::kHome},
        {Qt::Key_End, Key::kEnd},       {Qt::Key_Return, Key::kClick},      {Qt::Key_Enter, Key::kClick},
        {Qt::Key_Space, Key::kClick},   {Qt::Key_Escape, Key::kEscape}};
    if (event.matches(QKeySequence::Print))
        return KeyPress{.key = Key::kPrint, .repeated = event.isAutoRepeat()};
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return std::nullopt;
    KeyPress press{.key = kKeys.value(event.key(), Key::kCharacter), .repeated = event.isAutoRepeat()};
    if (press.key != Key::kCharacter) return press;
    press.character = CharacterOf(event.text());
    press.digit = DigitOn(event.nativeScanCode());
    if (press.character == 0 && press.digit == 0) return std::nullopt;
    return press;
}

}  // namespace onze
