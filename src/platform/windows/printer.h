#pragma once

#include <windows.h>

#include <vector>

#include "platform/windows/canvas.h"

namespace onze {

// A sheet that is painted for a printer: a bitmap of all that is drawn, as large as the larger pictures are,
// and over it the texts, in the printer's own pixels.
class PaperCanvas final : public Canvas {
  public:
    explicit PaperCanvas(Fonts& fonts);

    void DrawPicture(const Picture& picture, Point top_left) override;
    void FillBox(const Rect& box, Color color, int radius) override;
    void FrameBox(const Rect& box, Color color, int radius) override;
    void FillPolygon(std::span<const Point> corners, Color color) override;
    void DrawLine(Point from, Point to, int width, Color color) override;
    void DrawTextLine(Point top_left, std::string_view line, const Font& font, Color color) override;

    // Puts all of it on a printer, or on what records its calls, into a sheet of so many pixels.
    void PutOn(HDC printer, int width, int height);

  private:
    struct Text {
        Point top_left;
        std::string line;
        Font font;
        Color color;
    };

    void DropTextsUnder(const Rect& box);

    Fonts& fonts_;
    GdiBitmap drawing_;
    PageView view_;
    GdiCanvas drawn_;
    std::vector<Text> texts_;
};

enum class Printed { kDone, kGivenUp, kFailed };

// Has the user of a window choose the printer, in the system's own way, and prints the sheet.
Printed Print(HWND window, PaperCanvas& sheet);

}  // namespace onze
