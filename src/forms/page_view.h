#pragma once

#include "forms/geometry.h"

namespace onze {

// A position and a box of whole pixels of a window.
struct Pixel {
    int x = 0;
    int y = 0;

    friend bool operator==(const Pixel&, const Pixel&) = default;
};

struct PixelBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    constexpr int right() const { return left + width; }
    constexpr int bottom() const { return top + height; }
    constexpr bool empty() const { return width <= 0 || height <= 0; }

    friend bool operator==(const PixelBox&, const PixelBox&) = default;
};

// Where the page lies in a window: as large as its shape of 4 to 3 allows, in the middle.
class PageView {
  public:
    // Sizes in pixels of the window; one that is nothing counts as one pixel.
    PageView(int window_width, int window_height) : PageView({0, 0, window_width, window_height}) {}
    // In a part of the window, or of a sheet of paper.
    explicit PageView(const PixelBox& room);

    // Pixels of one twip, and of one pixel of the page.
    double scale() const { return static_cast<double>(pixels_) / twips_; }
    double enlargement() const { return scale() * kTwipsPerPixel; }
    PixelBox page() const { return page_; }
    // Every edge is brought to the nearest edge of a pixel.
    Pixel ToPixels(Point point) const;
    PixelBox ToPixels(const Rect& box) const;
    // A length of the page, at least one pixel.
    int LengthToPixels(int twips) const;
    // The middle of a pixel, so that a control is found exactly where it is painted.
    Point ToPage(Pixel pixel) const;
    // How far some pixels reach on the page, in twips.
    int LengthToPage(double pixels) const;
    // The part of the page that can reach into this part of the window, and the part of the window that this
    // part of the page can reach; both allow for rounding and for letters that pass their cell.
    Rect Around(const PixelBox& part) const;
    PixelBox Around(const Rect& part) const;

  private:
    int EdgeToPixels(int twips) const;
    int PixelToPage(int pixel) const;

    // As many pixels as twips, kept whole so that both ways round to the same.
    int pixels_;
    int twips_;
    PixelBox page_;
};

}  // namespace onze
