#include "platform/web/canvas.h"

#include <vector>

#include "platform/web/browser.h"
#include "platform/web/fonts.h"
#include "platform/web/pictures.h"

namespace onze {

namespace {

int NumberOf(Color color) {
    return color.red << 16 | color.green << 8 | color.blue;
}

}  // namespace

void FillPixels(const PixelBox& box, Color color) {
    browser::FillBox(box.left, box.top, box.width, box.height, 0, NumberOf(color));
}

void WebCanvas::DrawPicture(const Picture& picture, Point top_left) {
    const auto& drawn = static_cast<const WebPicture&>(picture);
    const WebPicture& best = view_.enlargement() > kWorthLarger ? drawn.Largest() : drawn;
    const PixelBox& part = best.part();
    const Pixel at = view_.ToPixels(top_left);
    browser::DrawPicture(best.number(), part.left, part.top, part.width, part.height, at.x, at.y,
                         view_.LengthToPixels(drawn.WidthInPixels() * kTwipsPerPixel),
                         view_.LengthToPixels(drawn.HeightInPixels() * kTwipsPerPixel));
}

void WebCanvas::FillBox(const Rect& box, Color color, int radius) {
    const PixelBox pixels = view_.ToPixels(box);
    browser::FillBox(pixels.left, pixels.top, pixels.width, pixels.height, radius * view_.scale(),
                     NumberOf(color));
}

void WebCanvas::FrameBox(const Rect& box, Color color, int radius) {
    const PixelBox pixels = view_.ToPixels(box);
    browser::FrameBox(pixels.left, pixels.top, pixels.width, pixels.height, view_.LengthToPixels(1_px),
                      radius * view_.scale(), NumberOf(color));
}

void WebCanvas::FillPolygon(std::span<const Point> corners, Color color) {
    std::vector<int> numbers;
    for (const Point corner : corners) {
        const Pixel pixel = view_.ToPixels(corner);
        numbers.insert(numbers.end(), {pixel.x, pixel.y});
    }
    browser::FillPolygon(numbers.data(), corners.size(), NumberOf(color));
}

void WebCanvas::DrawLine(Point from, Point to, int width, Color color) {
    if (from.x == to.x || from.y == to.y) {
        FillBox(BoxOfLine(from, to, width), color, 0);
        return;
    }
    const double middle = 1_px * view_.scale() / 2;
    const Pixel start = view_.ToPixels(from);
    const Pixel end = view_.ToPixels(to);
    browser::DrawLine(start.x + middle, start.y + middle, end.x + middle, end.y + middle,
                      view_.LengthToPixels(width), NumberOf(color));
}

void WebCanvas::DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) {
    const Pixel base = view_.ToPixels(Point{top_left.x, top_left.y + Fonts::Ascent(font)});
    browser::DrawText(line.data(), line.size(), font.height, font.bold, base.x, base.y, view_.scale(),
                      NumberOf(color));
}

}  // namespace onze
