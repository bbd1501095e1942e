#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <tuple>

#include "forms/up_down.h"
#include "platform/data_files.h"
#include "platform/qt/canvas.h"
#include "platform/qt/pictures.h"
#include "shell/program.h"
#include "support/headless_host.h"
#include "support/monkey.h"

namespace onze {

namespace {

// The relative luminance and the contrast of the Web Content Accessibility Guidelines.
double Luminance(QRgb color) {
    static const std::array<double, 256> kLinear = [] {
        std::array<double, 256> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            const double c = static_cast<double>(i) / 255.0;
            table[i] = c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        }
        return table;
    }();
    const auto linear = [](int channel) { return kLinear[static_cast<std::size_t>(channel)]; };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double Contrast(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// How often each text was checked at its place: a few times, for the different grounds that it can have.
using Checks = std::map<std::tuple<std::string, int, int>, int>;
constexpr int kChecksOfOneText = 8;

// Paints on an image and, before each line of text, compares its color with what lies under it already: the
// worst tenth of the pixels decides.
class LegibilityCanvas final : public Canvas {
  public:
    LegibilityCanvas(QImage& image, QPainter& painter, Fonts& fonts, std::set<std::string>& faults,
                     Checks& checks)
        : image_(image),
          fonts_(fonts),
          faults_(faults),
          checks_(checks),
          canvas_(painter, PageView(image.width(), image.height()), fonts, pictures_) {}

    void DrawPicture(const Picture& picture, Point at) override { canvas_.DrawPicture(picture, at); }
    void FillBox(const Rect& box, Color color, int radius) override { canvas_.FillBox(box, color, radius); }
    void FrameBox(const Rect& box, Color color, int radius) override { canvas_.FrameBox(box, color, radius); }
    void FillPolygon(std::span<const Point> corners, Color color) override {
        canvas_.FillPolygon(corners, color);
    }
    void DrawLine(Point from, Point to, int width, Color color) override {
        canvas_.DrawLine(from, to, width, color);
    }

    void DrawTextLine(Point at, std::string_view line, const Font& font, Color color) override {
        if (line.find_first_not_of(' ') != std::string_view::npos) Check(at, std::string(line), font, color);
        canvas_.DrawTextLine(at, line, font, color);
    }

  private:
    void Check(Point at, const std::string& line, const Font& font, Color color) {
        if (++checks_[{line, at.x, at.y}] > kChecksOfOneText) return;
        const bool large = font.bold && font.height >= 13.0_pt;
        const double contrast = WorstTenth(at, fonts_.MeasureText(line, font), color);
        if (contrast >= (large ? 3.0 : 4.5) && font.height >= 6.5_pt) return;
        std::ostringstream fault;
        fault << "« " << line << " » at " << at.x / kTwipsPerPixel << "," << at.y / kTwipsPerPixel
              << ": contrast " << contrast << ", " << font.height / 20.0 << " points";
        faults_.insert(fault.str());
    }

    double WorstTenth(Point at, Size size, Color color) const {
        const double ink = Luminance(qRgb(color.red, color.green, color.blue));
        const QRect cell(at.x / kTwipsPerPixel, at.y / kTwipsPerPixel, size.width / kTwipsPerPixel,
                         size.height / kTwipsPerPixel);
        if (!image_.rect().contains(cell)) return 0;
        std::vector<double> contrasts;
        for (int y = cell.top(); y <= cell.bottom(); ++y) {
            for (int x = cell.left(); x <= cell.right(); ++x) {
                contrasts.push_back(Contrast(ink, Luminance(image_.pixel(x, y))));
            }
        }
        const auto tenth = contrasts.begin() + static_cast<std::ptrdiff_t>(contrasts.size() / 10);
        std::nth_element(contrasts.begin(), tenth, contrasts.end());
        return *tenth;
    }

    QImage& image_;
    Fonts& fonts_;
    std::set<std::string>& faults_;
    Checks& checks_;
    ScaledPictures pictures_;
    QtCanvas canvas_;
};

// Reads pictures and measures texts as the program does; all counters in its folder have five digits.
class RealLooks final : public HeadlessHost {
  public:
    RealLooks() {
        for (const char* page : {"11", "12", "13", "14", "15", "16"}) {
            const auto bytes = FolderFiles(DATAS_DIR).Read(page);
            HeadlessHost::Replace(page, bytes.value());
        }
        UsageRecord record;
        auto& counters = record.counters;
        for (auto* table : {&counters.TableConsultations, &counters.TableExercises, &counters.TableRight,
                            &counters.TableWrong}) {
            table->fill(20888);
        }
        counters.PuzzleCount = counters.PuzzleRight = counters.PuzzleWrong = 20888;
        counters.LessonConsultations = counters.PythagoreSolves = TaggedNumber::Integer(20888);
        HeadlessHost::Replace("18", ToBytes(record));
    }

    PicturePtr Decode(std::string_view name, std::span<const std::byte> file) override {
        return pictures_.Decode(name, file);
    }
    PicturePtr Clip(const Picture& picture, int x, int y, int width, int height) override {
        return pictures_.Clip(picture, x, y, width, height);
    }
    Size MeasureText(std::string_view line, const Font& font) override {
        return fonts_.MeasureText(line, font);
    }
    Fonts& fonts() { return fonts_; }

  private:
    QtPictures pictures_;
    Fonts fonts_;
};

// A child who does anything, and someone who looks at the page each time.
class Reader {
  public:
    Reader() : program_(host_, random_) {
        screens_.depart.fin.on_click = [] {};  // there is more to see
    }

    void ActAndLook() {
        monkey_.Act(program_);
        Look();
    }

    void Look() {
        QImage image(640, 480, QImage::Format_RGB32);
        QPainter painter(&image);
        LegibilityCanvas canvas(image, painter, host_.fonts(), faults_, checks_);
        program_.stage().Paint(canvas, {0, 0, kPageWidth, kPageHeight});
        for (const Control* control : program_.stage().front()->controls()) {
            if (control->visible()) seen_.insert(control);
        }
    }

    // The first control that was never seen, by its name and place; empty for none.
    std::string Unseen() const {
        for (const Form* form : {&screens_.depart.form, &screens_.apprendre.form, &screens_.leçon.form,
                                 &screens_.pythagore.form, &screens_.exercices.form, &screens_.bilan.form}) {
            for (const Control* control : form->controls()) {
                if (!seen_.contains(control))
                    return control->name() + " at " + std::to_string(control->box().left);
            }
        }
        return "";
    }

    const std::set<std::string>& faults() const { return faults_; }

  private:
    RealLooks host_;
    SeededRandom random_{7};
    Program program_;
    const Reaction start_ = program_.Take(event::Started());
    Screens& screens_ = program_.screens();
    Monkey monkey_{7, [this](int time) {
                       host_.now += time;
                       program_.Take(event::TimePassed());
                   }};
    std::set<const Control*> seen_;
    std::set<std::string> faults_;
    Checks checks_;
};

TEST(Legibility, EveryTextStandsOutFromWhatLiesUnderIt) {
    Reader reader;
    for (int i = 0; i < 4000 || (i < 40'000 && !reader.Unseen().empty()); ++i) reader.ActAndLook();
    for (const std::string& fault : reader.faults()) ADD_FAILURE() << fault;
    EXPECT_EQ(reader.Unseen(), "");
}

}  // namespace

}  // namespace onze
