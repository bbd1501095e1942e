#pragma once

#include <string_view>

#include "forms/drawing.h"

namespace onze {

// How large texts are on this host.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;

    // The cell of one line of UTF-8 text: its advance width and the line height, in twips.
    virtual Size MeasureText(std::string_view line, const Font& font) = 0;
};

}  // namespace onze
