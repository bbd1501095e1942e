#include "forms/page_view.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace onze {

namespace {

constexpr int kMargin = 2;  // in pixels

std::int64_t FloorOfQuotient(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

}  // namespace

PageView::PageView(const PixelBox& room) {
    const bool tall = std::int64_t{room.width} * kPageHeight < std::int64_t{room.height} * kPageWidth;
    pixels_ = std::max(1, tall ? room.width : room.height);
    twips_ = tall ? kPageWidth : kPageHeight;
    page_.width = EdgeToPixels(kPageWidth);
    page_.height = EdgeToPixels(kPageHeight);
    page_.left = room.left + (room.width - page_.width) / 2;
    page_.top = room.top + (room.height - page_.height) / 2;
}

// A pixel belongs to what its middle lies in.
int PageView::EdgeToPixels(int twips) const {
    return static_cast<int>(-FloorOfQuotient(twips_ - std::int64_t{2} * twips * pixels_, 2 * twips_));
}

int PageView::PixelToPage(int pixel) const {
    return static_cast<int>(FloorOfQuotient((std::int64_t{2} * pixel + 1) * twips_, 2 * pixels_));
}

Pixel PageView::ToPixels(Point point) const {
    return {page_.left + EdgeToPixels(point.x), page_.top + EdgeToPixels(point.y)};
}

PixelBox PageView::ToPixels(const Rect& box) const {
    const Pixel start = ToPixels(Point{box.left, box.top});
    const Pixel end = ToPixels(Point{box.right(), box.bottom()});
    return {start.x, start.y, end.x - start.x, end.y - start.y};
}

int PageView::LengthToPixels(int twips) const {
    return std::max(1, EdgeToPixels(twips));
}

Point PageView::ToPage(Pixel pixel) const {
    return {PixelToPage(pixel.x - page_.left), PixelToPage(pixel.y - page_.top)};
}

int PageView::LengthToPage(double pixels) const {
    return static_cast<int>(std::lround(pixels / scale()));
}

Rect PageView::Around(const PixelBox& part) const {
    const Point from = ToPage({part.left - kMargin, part.top - kMargin});
    const Point to = ToPage({part.right() - 1 + kMargin, part.bottom() - 1 + kMargin});
    return {from.x, from.y, to.x - from.x, to.y - from.y};
}

PixelBox PageView::Around(const Rect& part) const {
    const PixelBox box = ToPixels(part);
    return {box.left - kMargin, box.top - kMargin, box.width + 2 * kMargin, box.height + 2 * kMargin};
}

}  // namespace onze
