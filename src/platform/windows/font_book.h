#pragma once

#include <windows.h>

#include <map>
#include <string_view>
#include <tuple>
#include <vector>

#include "forms/drawing.h"
#include "platform/windows/gdi_bitmap.h"

// The system's fonts, each made once. "MS Sans Serif" has bitmaps of a few sizes and letters of one alphabet
// only; other sizes and other letters come from "Microsoft Sans Serif", its scalable edition.
class FontBook {
  public:
    FontBook() = default;
    FontBook(const FontBook&) = delete;
    FontBook& operator=(const FontBook&) = delete;
    ~FontBook();

    HFONT FontFor(std::wstring_view text, const Font& font);
    // The cell of one line, in pixels.
    SIZE Measure(std::wstring_view line, const Font& font);
    // How far each of its letters goes, in pixels; together they are as wide as the measure.
    std::vector<int> Advances(std::wstring_view line, const Font& font);

  private:
    enum class Face { kBitmap, kScalable };
    using Key = std::tuple<Face, int, bool>;

    // Null when the system has no such bitmaps.
    HFONT Make(const Key& key);
    HFONT Get(const Key& key);
    int EmOf(HFONT font) const;
    // Of the font that is selected.
    TEXTMETRICW Metrics() const;

    // Letters are measured on the kind of ground that they are drawn on: their widths differ from one to
    // another.
    GdiBitmap ground_{1, 1};
    HDC dc_ = ground_.dc();
    std::map<Key, HFONT> fonts_;
};
