#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "forms/geometry.h"

namespace onze {

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Color&, const Color&) = default;
};

// "MS Sans Serif", or the face that stands for it on the platform.
struct Font {
    int height = 8.25_pt;  // of the em, in twips
    bool bold = false;

    friend bool operator==(const Font&, const Font&) = default;
};

class Picture;
using PicturePtr = std::shared_ptr<const Picture>;

// A picture of the platform's own, drawn at its own size: a pixel of it is a pixel of the page.
class Picture {
  public:
    virtual ~Picture() = default;
    virtual int WidthInPixels() const = 0;
    virtual int HeightInPixels() const = 0;

    // The same picture drawn larger, read anew; null where there is none. It is for who shows the page more
    // than kWorthLarger times as large.
    PicturePtr ReadLarger() const { return read_larger_ ? read_larger_() : nullptr; }
    // Where a picture is, it can be told where its larger one is to be had.
    void SetLarger(std::function<PicturePtr()> read) const { read_larger_ = std::move(read); }

  private:
    mutable std::function<PicturePtr()> read_larger_;
};

inline constexpr double kWorthLarger = 1.2;

// What a form paints on. Positions are twips of the page.
class Canvas {
  public:
    virtual ~Canvas() = default;

    virtual void DrawPicture(const Picture& picture, Point top_left) = 0;
    // A filled box; radius rounds its corners (0: square).
    virtual void FillBox(const Rect& box, Color color, int radius) = 0;
    // The outline of a box, one pixel wide, inside the box.
    virtual void FrameBox(const Rect& box, Color color, int radius) = 0;
    virtual void FillPolygon(std::span<const Point> corners, Color color) = 0;
    virtual void DrawLine(Point from, Point to, int width, Color color) = 0;
    // One line of UTF-8 text without any line break; top_left is the corner of its cell.
    virtual void DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) = 0;
};

// The box that an upright or level line of this width covers when it runs along the middle of its pixels,
// ends included.
inline Rect BoxOfLine(Point from, Point to, int width) {
    const int before = (width - 1_px) / 2;
    const Rect start{from.x - before, from.y - before, width, width};
    return start.United({to.x - before, to.y - before, width, width});
}

// A filled box with a darker edge at its foot, like a key to press.
inline void FillKey(Canvas& canvas, const Rect& box, Color fill, Color foot, int radius) {
    canvas.FillBox(box, foot, radius);
    canvas.FillBox({box.left, box.top, box.width, box.height - 3_px}, fill, radius);
}

}  // namespace onze
