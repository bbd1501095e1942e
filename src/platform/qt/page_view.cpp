#include "platform/qt/page_view.h"

#include <cmath>

namespace {

// In device pixels.
constexpr int kMargin = 2;

int Floor(double value) {
    return static_cast<int>(std::floor(value));
}

}  // namespace

PageView PageView::Fitting(QSize surface) {
    const double scale = std::min(static_cast<double>(surface.width()) / kPageWidth,
                                  static_cast<double>(surface.height()) / kPageHeight);
    const QSize size(qRound(kPageWidth * scale), qRound(kPageHeight * scale));
    return {scale, {(surface.width() - size.width()) / 2, (surface.height() - size.height()) / 2}, size};
}

QPoint PageView::ToDevice(Point point) const {
    return origin_ + QPoint(qRound(point.x * scale_), qRound(point.y * scale_));
}

QRect PageView::ToDevice(const Rect& box) const {
    const QPoint past_end = ToDevice(Point{box.right(), box.bottom()});
    return {ToDevice(Point{box.left, box.top}), past_end - QPoint(1, 1)};
}

int PageView::LengthToDevice(int twips) const {
    return std::max(1, qRound(twips * scale_));
}

Point PageView::ToPage(QPointF position) const {
    const double x = std::floor(position.x()) - origin_.x() + 0.5;
    const double y = std::floor(position.y()) - origin_.y() + 0.5;
    return {Floor(x / scale_), Floor(y / scale_)};
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
