#pragma once

#include <windows.h>

#include <cstdint>

namespace onze {

// A bitmap of 32-bit pixels, the rows from the top down, and a device context to draw on it or from it.
class GdiBitmap {
  public:
    // Throws std::bad_alloc when the system has no room for it.
    GdiBitmap(int width, int height);
    GdiBitmap(const GdiBitmap&) = delete;
    GdiBitmap& operator=(const GdiBitmap&) = delete;
    ~GdiBitmap();

    int width() const { return width_; }
    int height() const { return height_; }
    HDC dc() const { return dc_; }
    // How its pixels lie, for the system.
    BITMAPINFO info() const;
    // Blue in the low byte, then green, red and alpha.
    std::uint32_t* Row(int y) const;

  private:
    int width_;
    int height_;
    void* pixels_ = nullptr;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ former_bitmap_;
};

}  // namespace onze
