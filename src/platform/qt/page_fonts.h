#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <map>
#include <string_view>

#include "forms/drawing.h"

// The fonts that stand for "MS Sans Serif", in a face of the same widths. Each is as many pixels high as its
// text is twips, without hinting, so that its measures are twips and hold at every scale.
class PageFonts {
  public:
    struct Face {
        QFont font;
        QFontMetricsF metrics;
    };

    const Face& Find(const Font& font);
    // The cell of one line of text, in twips.
    Size Measure(std::string_view line, const Font& font);

  private:
    std::map<std::pair<int, bool>, Face> faces_;  // by height and weight
};
