#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "support/pupil.h"

namespace {

// Writes down all that is painted.
class WritingCanvas final : public Canvas {
  public:
    void DrawPicture(const Picture& picture, Point at) override {
        out << "picture " << static_cast<const HeadlessPicture&>(picture).source << At(at) << '\n';
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

// The pages as they are designed, before any of them is shown: every text, place, size and colour is written
// down in tests/design. Where a page is changed on purpose, what is painted now takes that file's place.
TEST(Design, EveryPageIsPaintedAsItWasDrawn) {
    Pupil pupil;
    Screens& screens = pupil.screens;
    screens.bilan.Fill();
    const std::pair<const char*, const Form*> pages[] = {
        {"depart", &screens.depart.form},       {"apprendre", &screens.apprendre.form},
        {"lecon", &screens.leçon.form},         {"pythagore", &screens.pythagore.form},
        {"exercices", &screens.exercices.form}, {"bilan", &screens.bilan.form}};
    for (const auto& [name, page] : pages) {
        WritingCanvas canvas;
        page->Paint(canvas, {0, 0, kPageWidth, kPageHeight});
        std::ostringstream drawn;
        drawn << std::ifstream(DESIGN_DIR + std::string(name) + ".txt").rdbuf();
        if (canvas.out.str() == drawn.str()) continue;
        std::ofstream(name + std::string(".txt")) << canvas.out.str();
        ADD_FAILURE() << "what is painted now stands in " << name << ".txt, in the folder of this run";
    }
}

}  // namespace
