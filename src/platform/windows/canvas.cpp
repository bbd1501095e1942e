#include "platform/windows/canvas.h"

#include <algorithm>
#include <vector>

#include "platform/windows/pictures.h"
#include "platform/windows/utf8.h"

namespace onze {

namespace {

using Gdiplus::REAL;

Gdiplus::Color ToGdiPlus(Color color) {
    return {color.red, color.green, color.blue};
}

COLORREF ToGdi(Color color) {
    return RGB(color.red, color.green, color.blue);
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

}  // namespace

RECT GdiCanvas::ToPixels(const Rect& box) const {
    const PixelBox pixels = view_.ToPixels(box);
    return {pixels.left, pixels.top, pixels.right(), pixels.bottom()};
}

Gdiplus::PointF GdiCanvas::Exact(Point point) const {
    const double scale = view_.scale();
    return {static_cast<REAL>(view_.page().left + point.x * scale),
            static_cast<REAL>(view_.page().top + point.y * scale)};
}

void GdiCanvas::DrawPicture(const Picture& picture, Point top_left) {
    const Pixel place = view_.ToPixels(top_left);
    static_cast<const GdiPicture&>(picture).DrawOn(
        dc_, place.x, place.y, view_.LengthToPixels(picture.WidthInPixels() * kTwipsPerPixel),
        view_.LengthToPixels(picture.HeightInPixels() * kTwipsPerPixel));
}

void GdiCanvas::FillBox(const Rect& box, Color color, int radius) {
    const RECT pixels = ToPixels(box);
    if (radius == 0) {
        FillRect(dc_, &pixels, Brush(color));
        return;
    }
    Gdiplus::GraphicsPath path;
    AddRoundedBox(path, pixels, static_cast<REAL>(radius * view_.scale()));
    const Gdiplus::SolidBrush brush(ToGdiPlus(color));
    Smooth(dc_).FillPath(&brush, &path);
}

// What lies between two boxes is filled.
void GdiCanvas::FrameBox(const Rect& box, Color color, int radius) {
    const RECT outside = ToPixels(box);
    const int width = view_.LengthToPixels(1_px);
    const RECT inside{outside.left + width, outside.top + width, outside.right - width,
                      outside.bottom - width};
    const double round = radius * view_.scale();
    Gdiplus::GraphicsPath path;
    AddRoundedBox(path, outside, static_cast<REAL>(round));
    AddRoundedBox(path, inside, static_cast<REAL>(round - width));
    const Gdiplus::SolidBrush brush(ToGdiPlus(color));
    Smooth(dc_).FillPath(&brush, &path);
}

void GdiCanvas::FillPolygon(std::span<const Point> corners, Color color) {
    std::vector<Gdiplus::PointF> points;
    for (const Point& corner : corners) points.push_back(Exact(corner));
    const Gdiplus::SolidBrush brush(ToGdiPlus(color));
    Smooth(dc_).FillPolygon(&brush, points.data(), static_cast<INT>(points.size()));
}

void GdiCanvas::DrawLine(Point from, Point to, int width, Color color) {
    if (from.x == to.x || from.y == to.y) {
        FillBox(BoxOfLine(from, to, width), color, 0);
        return;
    }
    const Gdiplus::Pen pen(ToGdiPlus(color), static_cast<REAL>(width * view_.scale()));
    const auto middle = static_cast<REAL>(view_.enlargement() / 2);
    const Gdiplus::PointF middle_of_pixel(middle, middle);
    Smooth(dc_).DrawLine(&pen, Exact(from) + middle_of_pixel, Exact(to) + middle_of_pixel);
}

void GdiCanvas::DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) {
    const std::wstring text = ToWide(line);
    const Pixel place = view_.ToPixels(top_left);
    const HGDIOBJ former = SelectObject(dc_, fonts_.FontFor(text, font, view_.enlargement()));
    SetBkMode(dc_, TRANSPARENT);
    SetTextColor(dc_, ToGdi(color));
    // Some faces are drawn wider than they are measured, unless they are told where each letter goes.
    const std::vector<int> advances = fonts_.Advances(text, font, view_.enlargement());
    ExtTextOutW(dc_, place.x, place.y, 0, nullptr, text.data(), static_cast<UINT>(text.size()),
                advances.data());
    SelectObject(dc_, former);
}

HBRUSH GdiCanvas::Brush(Color color) {
    SetDCBrushColor(dc_, ToGdi(color));
    return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

}  // namespace onze
