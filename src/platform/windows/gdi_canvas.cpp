#include "platform/windows/gdi_canvas.h"

#include <algorithm>
#include <vector>

#include "platform/windows/gdi_picture.h"
#include "platform/windows/gdi_plus.h"
#include "platform/windows/pixels.h"
#include "platform/windows/text.h"

namespace {

using Gdiplus::REAL;

Gdiplus::Color ToGdiPlus(Color color) {
    return {color.red, color.green, color.blue};
}

COLORREF ToGdi(Color color) {
    return RGB(color.red, color.green, color.blue);
}

REAL Exact(int twips) {
    return static_cast<REAL>(twips) / kTwipsPerPixel;
}

// Smooth drawing in which whole numbers are the edges of pixels.
class Smooth : public Gdiplus::Graphics {
  public:
    explicit Smooth(HDC dc) : Graphics(dc) {
        SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    }
};

void AddRoundedBox(Gdiplus::GraphicsPath& path, const RECT& box, REAL radius) {
    const REAL left = static_cast<REAL>(box.left);
    const REAL top = static_cast<REAL>(box.top);
    const REAL right = static_cast<REAL>(box.right);
    const REAL bottom = static_cast<REAL>(box.bottom);
    const REAL turn = std::max(std::min({2 * radius, right - left, bottom - top}), REAL{0.1F});
    path.AddArc(left, top, turn, turn, 180, 90);
    path.AddArc(right - turn, top, turn, turn, 270, 90);
    path.AddArc(right - turn, bottom - turn, turn, turn, 0, 90);
    path.AddArc(left, bottom - turn, turn, turn, 90, 90);
    path.CloseFigure();
}

// The box of a line that runs along the middle of its pixels, ends included.
Rect Covered(Point from, Point to, int width) {
    const int before = (width - 1_px) / 2;
    const Rect start{from.x - before, from.y - before, width, width};
    return start.United({to.x - before, to.y - before, width, width});
}

}  // namespace

void GdiCanvas::DrawPicture(const Picture& picture, Point top_left) {
    static_cast<const GdiPicture&>(picture).DrawOn(dc_, ToPixels(top_left.x), ToPixels(top_left.y));
}

void GdiCanvas::FillBox(const Rect& box, Color color, int radius) {
    const RECT pixels = ToPixels(box);
    if (radius == 0) {
        FillRect(dc_, &pixels, Brush(color));
        return;
    }
    Gdiplus::GraphicsPath path;
    AddRoundedBox(path, pixels, Exact(radius));
    const Gdiplus::SolidBrush brush(ToGdiPlus(color));
    Smooth(dc_).FillPath(&brush, &path);
}

void GdiCanvas::FrameBox(const Rect& box, Color color, int radius) {
    const RECT pixels = ToPixels(box);
    if (radius == 0) {
        FrameRect(dc_, &pixels, Brush(color));
        return;
    }
    // What lies between two boxes is filled.
    const RECT inside{pixels.left + 1, pixels.top + 1, pixels.right - 1, pixels.bottom - 1};
    Gdiplus::GraphicsPath path;
    AddRoundedBox(path, pixels, Exact(radius));
    AddRoundedBox(path, inside, Exact(radius - 1_px));
    const Gdiplus::SolidBrush brush(ToGdiPlus(color));
    Smooth(dc_).FillPath(&brush, &path);
}

void GdiCanvas::FillPolygon(std::span<const Point> corners, Color color) {
    std::vector<Gdiplus::PointF> points;
    for (const Point& corner : corners) points.emplace_back(Exact(corner.x), Exact(corner.y));
    const Gdiplus::SolidBrush brush(ToGdiPlus(color));
    Smooth(dc_).FillPolygon(&brush, points.data(), static_cast<INT>(points.size()));
}

void GdiCanvas::DrawLine(Point from, Point to, int width, Color color) {
    if (from.x == to.x || from.y == to.y) {
        FillBox(Covered(from, to, width), color, 0);
        return;
    }
    const Gdiplus::Pen pen(ToGdiPlus(color), Exact(width));
    const REAL middle = 0.5F;
    Smooth(dc_).DrawLine(&pen, Exact(from.x) + middle, Exact(from.y) + middle, Exact(to.x) + middle,
                         Exact(to.y) + middle);
}

void GdiCanvas::DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) {
    const std::wstring text = ToWide(line);
    const HGDIOBJ former = SelectObject(dc_, fonts_.FontFor(text, font));
    SetBkMode(dc_, TRANSPARENT);
    SetTextColor(dc_, ToGdi(color));
    // Some faces are drawn wider than they are measured, unless they are told where each letter goes.
    const std::vector<int> advances = fonts_.Advances(text, font);
    ExtTextOutW(dc_, ToPixels(top_left.x), ToPixels(top_left.y), 0, nullptr, text.data(),
                static_cast<UINT>(text.size()), advances.data());
    SelectObject(dc_, former);
}

HBRUSH GdiCanvas::Brush(Color color) {
    SetDCBrushColor(dc_, ToGdi(color));
    return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}
