#pragma once

namespace onze {

enum class Key {
    kTab,
    kBackTab,
    kUp,
    kDown,
    kLeft,
    kRight,
    kPageUp,
    kPageDown,
    kHome,
    kEnd,
    kClick,  // Enter or Space
    kEscape,
    kPrint,  // Ctrl + P
    kCharacter,
};

// What can be done to a control that the focus can stand on, by those who have no keys for it.
enum class Use { kFocus, kClick, kRaise, kLower, kEnter };

struct KeyPress {
    Key key;
    char character = 0;     // the one typed, where it is plain ASCII
    char digit = 0;         // the one on the key, whatever the keyboard's layout makes of it: '0' to '9'
    bool repeated = false;  // the key is being held
};

}  // namespace onze
