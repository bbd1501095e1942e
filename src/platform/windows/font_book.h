#pragma once

#include <windows.h>

#include <map>
#include <string_view>
#include <tuple>

#include "forms/drawing.h"

// The system's fonts, each made once. "MS Sans Serif" has bitmaps of a few sizes and letters of one alphabet
// only; other sizes and other letters come from "Microsoft Sans Serif", its scalable edition.
class FontBook {
  public:
    FontBook();
    FontBook(const FontBook&) = delete;
    FontBook& operator=(const FontBook&) = delete;
    ~FontBook();

    HFONT FontFor(std::wstring_view text, const Font& font);
    // The cell of one line, in pixels.
    SIZE Measure(std::wstring_view line, const Font& font);

  private:
    enum class Face { kBitmap, kScalable };
    using Key = std::tuple<Face, int, bool>;

    // Null when the system has no such bitmaps.
    HFONT Make(const Key& key);
    HFONT Get(const Key& key);
    int EmOf(HFONT font) const;
    // Of the font that is selected.
    TEXTMETRICW Metrics() const;

    HDC dc_;
    std::map<Key, HFONT> fonts_;
};
