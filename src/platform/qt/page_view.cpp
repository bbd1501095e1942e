#include "platform/qt/page_view.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

// In device pixels.
constexpr int kMargin = 2;

std::int64_t FloorOfQuotient(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

}  // namespace

PageView PageView::Fitting(QSize surface) {
    const bool tall =
        std::int64_t{surface.width()} * kPageHeight < std::int64_t{surface.height()} * kPageWidth;
    return tall ? PageView(surface.width(), kPageWidth, surface)
                : PageView(surface.height(), kPageHeight, surface);
}

PageView::PageView(int pixels, int twips, QSize surface)
    : pixels_(std::max(1, pixels)),
      twips_(twips),
      size_(EdgeToDevice(kPageWidth), EdgeToDevice(kPageHeight)) {
    origin_ = QPoint(surface.width() - size_.width(), surface.height() - size_.height()) / 2;
}

// A pixel belongs to what its middle lies in.
int PageView::EdgeToDevice(int twips) const {
    return static_cast<int>(-FloorOfQuotient(twips_ - std::int64_t{2} * twips * pixels_, 2 * twips_));
}

int PageView::PixelToPage(double position) const {
    const auto pixel = static_cast<std::int64_t>(std::floor(position));
    return static_cast<int>(FloorOfQuotient((2 * pixel + 1) * twips_, 2 * pixels_));
}

QPoint PageView::ToDevice(Point point) const {
    return origin_ + QPoint(EdgeToDevice(point.x), EdgeToDevice(point.y));
}

QRect PageView::ToDevice(const Rect& box) const {
    const QPoint past_end = ToDevice(Point{box.right(), box.bottom()});
    return {ToDevice(Point{box.left, box.top}), past_end - QPoint(1, 1)};
}

int PageView::LengthToDevice(int twips) const {
    return std::max(1, EdgeToDevice(twips));
}

Point PageView::ToPage(QPointF position) const {
    return {PixelToPage(position.x() - origin_.x()), PixelToPage(position.y() - origin_.y())};
}

Rect PageView::Around(const QRect& part) const {
    const QRect grown = part.marginsAdded({kMargin, kMargin, kMargin, kMargin});
    const Point from = ToPage(grown.topLeft());
    const Point to = ToPage(grown.bottomRight());
    return {from.x, from.y, to.x - from.x, to.y - from.y};
}

QRect PageView::Around(const Rect& part) const {
    return ToDevice(part).marginsAdded({kMargin, kMargin, kMargin, kMargin});
}
