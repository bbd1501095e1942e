#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <map>
#include <string_view>

#include "forms/text_measure.h"

namespace onze {

// The fonts that stand for "MS Sans Serif", in a face of the same widths. Each is as many pixels high as its
// text is twips, without hinting, so that its measures are twips and hold at every scale.
class Fonts final : public TextMeasure {
  public:
    struct Face {
        QFont font;
        QFontMetricsF metrics;
    };

    const Face& Find(const Font& font);
    Size MeasureText(std::string_view line, const Font& font) override;

  private:
    std::map<std::pair<int, bool>, Face> faces_;  // by height and weight
};

}  // namespace onze
