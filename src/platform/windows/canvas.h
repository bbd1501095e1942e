#pragma once

#include <windows.h>

#include "forms/drawing.h"
#include "forms/page_view.h"
#include "platform/windows/fonts.h"
#include "platform/windows/gdi_plus.h"

namespace onze {

// Paints on a device context whose pixels are those of the window.
class GdiCanvas final : public Canvas {
  public:
    GdiCanvas(HDC dc, const PageView& view, Fonts& fonts) : dc_(dc), view_(view), fonts_(fonts) {}

    void DrawPicture(const Picture& picture, Point top_left) override;
    void FillBox(const Rect& box, Color color, int radius) override;
    void FrameBox(const Rect& box, Color color, int radius) override;
    void FillPolygon(std::span<const Point> corners, Color color) override;
    void DrawLine(Point from, Point to, int width, Color color) override;
    void DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) override;

  private:
    RECT ToPixels(const Rect& box) const;
    Gdiplus::PointF Exact(Point point) const;
    HBRUSH Brush(Color color);

    HDC dc_;
    PageView view_;
    Fonts& fonts_;
};

}  // namespace onze
