#pragma once

#include "forms/drawing.h"
#include "forms/page_view.h"
#include "platform/qt/fonts.h"
#include "platform/qt/scaled_pictures.h"

class QPainter;
class QPainterPath;

namespace onze {

// Paints a page on any surface whose painter works in device pixels. Edges are sharp at every scale: boxes
// and base lines lie on whole device pixels.
class QtCanvas final : public Canvas {
  public:
    QtCanvas(QPainter& painter, const PageView& view, Fonts& fonts, ScaledPictures& pictures)
        : painter_(painter), view_(view), fonts_(fonts), pictures_(pictures) {}

    void DrawPicture(const Picture& picture, Point top_left) override;
    void FillBox(const Rect& box, Color color, int radius) override;
    void FrameBox(const Rect& box, Color color, int radius) override;
    void FillPolygon(std::span<const Point> corners, Color color) override;
    void DrawLine(Point from, Point to, int width, Color color) override;
    void DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) override;

  private:
    void Fill(const QPainterPath& path, Color color);

    QPainter& painter_;
    PageView view_;
    Fonts& fonts_;
    ScaledPictures& pictures_;
};

}  // namespace onze
