#include "platform/web/fonts.h"

#include <cmath>

#include "platform/web/browser.h"

namespace onze {

namespace {

// Of Liberation Sans; not every browser tells them.
constexpr int kUnitsPerEm = 2048;
constexpr int kAscent = 1854;
constexpr int kDescent = 434;

}  // namespace

Size Fonts::MeasureText(std::string_view line, const Font& font) {
    const double width = browser::TextWidth(line.data(), line.size(), font.height, font.bold);
    const int height = (font.height * (kAscent + kDescent) + kUnitsPerEm - 1) / kUnitsPerEm;
    return {static_cast<int>(std::ceil(width)), height};
}

int Fonts::Ascent(const Font& font) {
    return (font.height * kAscent + kUnitsPerEm / 2) / kUnitsPerEm;
}

}  // namespace onze
