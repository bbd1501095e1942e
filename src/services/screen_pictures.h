#pragma once

#include <string_view>

class Form;
class Platform;

// Gives a screen the background picture of this name. Throws RunTimeError, naming the file, when it is
// missing or unreadable. On displays of more than 256 colours a picture's own palette has no effect, so none
// is kept.
void LoadScreenPictures(Platform& platform, Form& screen, std::string_view name);
