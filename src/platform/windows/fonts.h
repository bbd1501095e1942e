#pragma once

#include <windows.h>

#include <map>
#include <string_view>
#include <tuple>
#include <vector>

#include "forms/text_measure.h"
#include "platform/windows/gdi_bitmap.h"

namespace onze {

// The system's fonts, each made once. "MS Sans Serif" has bitmaps of a few sizes and letters of one alphabet
// only; other sizes and other letters come from "Microsoft Sans Serif", its scalable edition.
class Fonts final : public TextMeasure {
  public:
    Fonts() = default;
    Fonts(const Fonts&) = delete;
    Fonts& operator=(const Fonts&) = delete;
    ~Fonts() override;

    // So many times as large as on the page.
    HFONT FontFor(std::wstring_view text, const Font& font, double enlargement = 1);
    Size MeasureText(std::string_view line, const Font& font) override;
    // How far each letter of a line goes, in pixels of the enlarged page; together they are as wide as the
    // measure.
    std::vector<int> Advances(std::wstring_view line, const Font& font, double enlargement);

  private:
    enum class Face { kBitmap, kScalable };
    using Key = std::tuple<Face, int, bool>;

    // Null when the system has no such bitmaps.
    HFONT Make(const Key& key);
    HFONT Get(const Key& key);
    // Where each letter of a line ends, in pixels from its begin.
    std::vector<int> Ends(std::wstring_view line, HFONT font) const;
    int EmOf(HFONT font) const;
    // Of the font that is selected.
    TEXTMETRICW Metrics() const;

    // Letters are measured on the kind of ground that they are drawn on: their widths differ from one to
    // another.
    GdiBitmap ground_{1, 1};
    HDC dc_ = ground_.dc();
    std::map<Key, HFONT> fonts_;
};

}  // namespace onze
