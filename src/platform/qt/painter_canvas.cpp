#include "platform/qt/painter_canvas.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include "platform/qt/qt_picture.h"

namespace {

QColor ToQt(Color color) {
    return {color.red, color.green, color.blue};
}

// The box that a line of this width covers when it runs along the middle of its pixels, ends included.
Rect Covered(Point from, Point to, int width) {
    const int before = (width - 1_px) / 2;
    const Rect start{from.x - before, from.y - before, width, width};
    return start.United({to.x - before, to.y - before, width, width});
}

}  // namespace

void PainterCanvas::DrawPicture(const Picture& picture, Point top_left) {
    const auto& drawn = static_cast<const QtPicture&>(picture);
    const QSize size(view_.LengthToDevice(drawn.WidthInPixels() * kTwipsPerPixel),
                     view_.LengthToDevice(drawn.HeightInPixels() * kTwipsPerPixel));
    painter_.drawImage(view_.ToDevice(top_left), pictures_.AtSize(drawn, size, view_.page().size()));
}

void PainterCanvas::FillBox(const Rect& box, Color color, int radius) {
    if (radius == 0) {
        painter_.fillRect(view_.ToDevice(box), ToQt(color));
        return;
    }
    QPainterPath path;
    const double round = radius * view_.scale();
    path.addRoundedRect(view_.ToDevice(box), round, round);
    Fill(path, color);
}

void PainterCanvas::FrameBox(const Rect& box, Color color, int radius) {
    const int width = view_.LengthToDevice(1_px);
    const QRect outside = view_.ToDevice(box);
    const double outer_round = radius * view_.scale();
    const double inner_round = std::max(0.0, outer_round - width);
    QPainterPath path;  // the inner box is left out of the outer one
    path.addRoundedRect(outside, outer_round, outer_round);
    path.addRoundedRect(outside.marginsRemoved({width, width, width, width}), inner_round, inner_round);
    Fill(path, color);
}

void PainterCanvas::Fill(const QPainterPath& path, Color color) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.fillPath(path, ToQt(color));
}

void PainterCanvas::FillPolygon(std::span<const Point> corners, Color color) {
    QPolygonF polygon;
    for (const Point corner : corners) polygon << view_.ToDevice(corner);
    QPainterPath path;
    path.addPolygon(polygon);
    Fill(path, color);
}

void PainterCanvas::DrawLine(Point from, Point to, int width, Color color) {
    if (from.x == to.x || from.y == to.y) {
        FillBox(Covered(from, to, width), color, 0);
        return;
    }
    const QPointF middle = QPointF(0.5, 0.5) * (1_px * view_.scale());
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(ToQt(color), view_.LengthToDevice(width)));
    painter_.drawLine(view_.ToDevice(from) + middle, view_.ToDevice(to) + middle);
}

void PainterCanvas::DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) {
    const PageFonts::Face& face = fonts_.Find(font);
    const int ascent = qRound(face.metrics.ascent());
    painter_.save();
    painter_.translate(view_.ToDevice(Point{top_left.x, top_left.y + ascent}));
    painter_.scale(view_.scale(), view_.scale());
    painter_.setFont(face.font);
    painter_.setPen(ToQt(color));
    painter_.drawText(QPointF(0, 0), QString::fromUtf8(line));
    painter_.restore();
}
