#pragma once

#include <windows.h>

#include "forms/drawing.h"
#include "platform/windows/font_book.h"

// Paints on a device context whose pixels are those of the page.
class GdiCanvas final : public Canvas {
  public:
    GdiCanvas(HDC dc, FontBook& fonts) : dc_(dc), fonts_(fonts) {}

    void DrawPicture(const Picture& picture, Point top_left) override;
    void FillBox(const Rect& box, Color color, int radius) override;
    void FrameBox(const Rect& box, Color color, int radius) override;
    void FillPolygon(std::span<const Point> corners, Color color) override;
    void DrawLine(Point from, Point to, int width, Color color) override;
    void DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) override;

  private:
    HBRUSH Brush(Color color);

    HDC dc_;
    FontBook& fonts_;
};
