#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/text_measure.h"

namespace onze {

struct TextLine {
    std::string text;
    int width = 0;
};

// A text broken into lines: at each carriage return, and at blanks where a line would pass the width.
struct TextLayout {
    Font font;
    int line_height = 0;
    std::vector<TextLine> lines;

    int Width() const;
    int Height() const { return line_height * static_cast<int>(lines.size()); }
};

// The text as it stands, broken at its carriage returns only.
TextLayout LayOutUnwrapped(TextMeasure& measure, std::string_view text, const Font& font);

// The text wrapped into a box, in the font asked for or, when it would not fit, in the largest smaller size
// that does (down to 4 points). The last line may be given a narrower limit than the box (0: none).
TextLayout LayOutInBox(TextMeasure& measure, std::string_view text, const Font& font, Size box,
                       int last_line_limit = 0);

}  // namespace onze
