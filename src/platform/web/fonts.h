#pragma once

#include <string_view>

#include "forms/text_measure.h"

namespace onze {

// The shipped face that stands for "MS Sans Serif", as many pixels high as its text is twips, so that its
// measures are twips and hold at every scale.
class Fonts final : public TextMeasure {
  public:
    Size MeasureText(std::string_view line, const Font& font) override;
    // From the top of a line to its base, in twips.
    static int Ascent(const Font& font);
};

}  // namespace onze
