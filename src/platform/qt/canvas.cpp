#include "platform/qt/canvas.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include "platform/qt/pictures.h"

namespace onze {

namespace {

QColor ToQt(Color color) {
    return {color.red, color.green, color.blue};
}

QPoint ToQt(Pixel pixel) {
    return {pixel.x, pixel.y};
}

QRect ToQt(const PixelBox& box) {
    return {box.left, box.top, box.width, box.height};
}

}  // namespace

void QtCanvas::DrawPicture(const Picture& picture, Point top_left) {
    const auto& drawn = static_cast<const QtPicture&>(picture);
    const QSize size(view_.LengthToPixels(drawn.WidthInPixels() * kTwipsPerPixel),
                     view_.LengthToPixels(drawn.HeightInPixels() * kTwipsPerPixel));
    painter_.drawImage(ToQt(view_.ToPixels(top_left)),
                       pictures_.AtSize(drawn, size, ToQt(view_.page()).size()));
}

void QtCanvas::FillBox(const Rect& box, Color color, int radius) {
    if (radius == 0) {
        painter_.fillRect(ToQt(view_.ToPixels(box)), ToQt(color));
        return;
    }
    QPainterPath path;
    const double round = radius * view_.scale();
    path.addRoundedRect(ToQt(view_.ToPixels(box)), round, round);
    Fill(path, color);
}

void QtCanvas::FrameBox(const Rect& box, Color color, int radius) {
    const int width = view_.LengthToPixels(1_px);
    const QRect outside = ToQt(view_.ToPixels(box));
    const double outer_round = radius * view_.scale();
    const double inner_round = std::max(0.0, outer_round - width);
    QPainterPath path;  // the inner box is left out of the outer one
    path.addRoundedRect(outside, outer_round, outer_round);
    path.addRoundedRect(outside.marginsRemoved({width, width, width, width}), inner_round, inner_round);
    Fill(path, color);
}

void QtCanvas::Fill(const QPainterPath& path, Color color) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.fillPath(path, ToQt(color));
}

void QtCanvas::FillPolygon(std::span<const Point> corners, Color color) {
    QPolygonF polygon;
    for (const Point corner : corners) polygon << ToQt(view_.ToPixels(corner));
    QPainterPath path;
    path.addPolygon(polygon);
    Fill(path, color);
}

void QtCanvas::DrawLine(Point from, Point to, int width, Color color) {
    if (from.x == to.x || from.y == to.y) {
        FillBox(BoxOfLine(from, to, width), color, 0);
        return;
    }
    const QPointF middle = QPointF(0.5, 0.5) * (1_px * view_.scale());
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(ToQt(color), view_.LengthToPixels(width)));
    painter_.drawLine(ToQt(view_.ToPixels(from)) + middle, ToQt(view_.ToPixels(to)) + middle);
}

void QtCanvas::DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) {
    const Fonts::Face& face = fonts_.Find(font);
    const int ascent = qRound(face.metrics.ascent());
    painter_.save();
    painter_.translate(ToQt(view_.ToPixels(Point{top_left.x, top_left.y + ascent})));
    painter_.scale(view_.scale(), view_.scale());
    painter_.setFont(face.font);
    painter_.setPen(ToQt(color));
    painter_.drawText(QPointF(0, 0), QString::fromUtf8(line));
    painter_.restore();
}

}  // namespace onze
