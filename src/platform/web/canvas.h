#pragma once

#include "forms/drawing.h"
#include "forms/page_view.h"

namespace onze {

// Paints a page on the page's canvas. Edges are sharp at every scale: boxes and base lines lie on whole
// device pixels.
class WebCanvas final : public Canvas {
  public:
    explicit WebCanvas(const PageView& view) : view_(view) {}

    void DrawPicture(const Picture& picture, Point top_left) override;
    void FillBox(const Rect& box, Color color, int radius) override;
    void FrameBox(const Rect& box, Color color, int radius) override;
    void FillPolygon(std::span<const Point> corners, Color color) override;
    void DrawLine(Point from, Point to, int width, Color color) override;
    void DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) override;

  private:
    PageView view_;
};

// Fills a box of the window.
void FillPixels(const PixelBox& box, Color color);

}  // namespace onze
