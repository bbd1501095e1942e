#pragma once

#include <sstream>

#include "support/headless_host.h"

namespace onze {

// Writes down all that is painted.
class WritingCanvas final : public Canvas {
  public:
    void DrawPicture(const Picture& picture, Point at) override {
        const auto& drawn = static_cast<const NullPicture&>(picture);
        out << "picture " << drawn.source << At({drawn.x, drawn.y}) << ' ' << drawn.width << 'x'
            << drawn.height << " at" << At(at) << '\n';
    }
    void FillBox(const Rect& box, Color color, int radius) override { Box("fill", box, color, radius); }
    void FrameBox(const Rect& box, Color color, int radius) override { Box("frame", box, color, radius); }
    void FillPolygon(std::span<const Point> corners, Color color) override {
        out << "polygon" << At(corners.front()) << In(color) << '\n';
    }
    void DrawLine(Point from, Point to, int width, Color color) override {
        out << "line" << At(from) << At(to) << " wide " << width << In(color) << '\n';
    }
    void DrawTextLine(Point at, std::string_view line, const Font& font, Color color) override {
        out << "text" << At(at) << " high " << font.height << (font.bold ? " bold" : "") << In(color) << " |"
            << line << "|\n";
    }

    std::ostringstream out;

  private:
    static std::string At(Point point) {
        return " " + std::to_string(point.x) + "," + std::to_string(point.y);
    }
    static std::string In(Color color) {
        return " in " + std::to_string(color.red) + "," + std::to_string(color.green) + "," +
               std::to_string(color.blue);
    }
    void Box(const char* kind, const Rect& box, Color color, int radius) {
        out << kind << At({box.left, box.top}) << " " << box.width << "x" << box.height << " round " << radius
            << In(color) << '\n';
    }
};

}  // namespace onze
