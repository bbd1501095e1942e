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

using Faults = std::set<std::string>;

// Of the pixels in a place, or of some of them.
std::vector<double> Luminances(const QImage& image, const QRect& place, int stride) {
    std::vector<double> luminances;
    for (int y = place.top(); y <= place.bottom(); y += stride) {
        for (int x = place.left(); x <= place.right(); x += stride)
            luminances.push_back(Luminance(image.pixel(x, y)));
    }
    return luminances;
}

// Whether a ground has nothing but pale rulings.
bool IsCalm(const std::vector<double>& ground) {
    const auto [darkest, lightest] = std::minmax_element(ground.begin(), ground.end());
    return Contrast(*darkest, *lightest) < 1.35;
}

// How large the steps of brightness are where there are any.
double Sharpness(const QImage& image) {
    const std::vector<double> pixels = Luminances(image, image.rect(), 1);
    double squares = 0;
    double sum = 1e-9;
    for (std::size_t i = 1; i < pixels.size(); ++i) {
        const double step = std::abs(pixels[i] - pixels[i - 1]);
        squares += step * step;
        sum += step;
    }
    return squares / sum;
}

// What is kept from one look at the page to the next, on a screen of this size.
struct Screen {
    int width, height;
    int every;  // so many actions it is looked at
    Checks checks{};
    ScaledPictures pictures{};
    std::set<const Picture*> measured{};
};

std::string Described(const std::string& text, const Rect& box, const Screen& screen) {
    std::ostringstream out;
    out << "« " << text << " » at " << box.left / kTwipsPerPixel << "," << box.top / kTwipsPerPixel << " on "
        << screen.width << "x" << screen.height << ": ";
    return out.str();
}

// Paints on an image and, before each line of text, compares its color with what lies under it already: the
// worst tenth of the pixels decides. Where there is ink, nothing may be drawn.
class LegibilityCanvas final : public Canvas {
  public:
    LegibilityCanvas(QImage& image, QPainter& painter, Fonts& fonts, Faults& faults, Screen& screen)
        : image_(image),
          view_(image.width(), image.height()),
          fonts_(fonts),
          faults_(faults),
          screen_(screen),
          canvas_(painter, view_, fonts, screen.pictures) {}

    void DrawPicture(const Picture& picture, Point at) override {
        canvas_.DrawPicture(picture, at);
        if (view_.enlargement() <= kWorthLarger || picture.WidthInPixels() < 640) return;
        if (!screen_.measured.insert(&picture).second) return;
        const PixelBox page = view_.page();
        const QRect place(page.left, page.top, page.width, page.height);
        const QImage enlarged = static_cast<const QtPicture&>(picture)
                                    .image()
                                    .convertToFormat(image_.format())
                                    .scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (Sharpness(image_.copy(place)) < 1.3 * Sharpness(enlarged))
            faults_.insert(Described("the picture", {}, screen_) + "soft");
    }
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
        if (++screen_.checks[{line, at.x, at.y}] > kChecksOfOneText) return;
        const bool large = font.bold && font.height >= 13.0_pt;
        const Rect ink = InkOf(at, line, font);
        const std::vector<double> ground = Ground(ink);
        const double contrast = WorstTenth(ground, color);
        if (contrast < (large ? 3.0 : 4.5) || font.height < 6.5_pt) {
            faults_.insert(Described(line, ink, screen_) + "contrast " + std::to_string(contrast) + ", " +
                           std::to_string(font.height / 20.0) + " points");
        }
        if (!IsCalm(ground)) faults_.insert(Described(line, ink, screen_) + "something is drawn there");
    }

    Rect InkOf(Point at, const std::string& line, const Font& font) const {
        const Fonts::Face& face = fonts_.Find(font);
        const QRectF ink = face.metrics.tightBoundingRect(QString::fromUtf8(line));
        return {at.x + qRound(ink.left()), at.y + qRound(face.metrics.ascent() + ink.top()),
                qRound(ink.width()), qRound(ink.height())};
    }

    // The luminances of what is painted there; of a large screen some.
    std::vector<double> Ground(const Rect& place) const {
        const PixelBox box = view_.ToPixels(place);
        const QRect pixels(box.left, box.top, box.width, box.height);
        if (pixels.isEmpty() || !image_.rect().contains(pixels)) return {0, 1};
        return Luminances(image_, pixels, std::max(1, static_cast<int>(view_.enlargement())));
    }

    static double WorstTenth(std::vector<double> ground, Color color) {
        const double ink = Luminance(qRgb(color.red, color.green, color.blue));
        for (double& luminance : ground) luminance = Contrast(ink, luminance);
        const auto tenth = ground.begin() + static_cast<std::ptrdiff_t>(ground.size() / 10);
        std::nth_element(ground.begin(), tenth, ground.end());
        return *tenth;
    }

    QImage& image_;
    PageView view_;
    Fonts& fonts_;
    Faults& faults_;
    Screen& screen_;
    QtCanvas canvas_;
};

// Reads pictures and measures texts as the program does; all counters in its folder have five digits.
class RealLooks final : public HeadlessHost {
  public:
    RealLooks() {
        for (const std::string page : {"11", "12", "13", "14", "15", "16"}) {
            for (const std::string& file : {page, page + ".3x"}) {
                const auto bytes = FolderFiles(DATAS_DIR).Read(file);
                HeadlessHost::Replace(file, bytes.value());
            }
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
        ++actions_;
        for (Screen& screen : displays_) {
            if (actions_ % screen.every == 0) LookAt(screen);
        }
        for (const Control* control : program_.stage().front()->controls()) {
            if (!control->visible()) continue;
            seen_.insert(control);
            CheckRoomAround(*control);
        }
    }

    void LookAt(Screen& screen) {
        QImage image(screen.width, screen.height, QImage::Format_RGB32);
        QPainter painter(&image);
        LegibilityCanvas canvas(image, painter, host_.fonts(), faults_, screen);
        program_.stage().Paint(canvas, {0, 0, kPageWidth, kPageHeight});
    }

    // A key keeps two pixels off what is drawn on its page.
    void CheckRoomAround(const Control& control) {
        const auto* label = dynamic_cast<const Label*>(&control);
        const bool key = dynamic_cast<const UpDown*>(&control) || (label && label->style().foot);
        const auto place = std::tuple(&control, control.box().left, control.box().top);
        if (!key || !looked_around_.insert(place).second) return;
        const PixelBox box = PageView(640, 480).ToPixels(control.HitBox());
        const QRect inside(box.left, box.top, box.width, box.height);
        const QImage& page = static_cast<const QtPicture&>(*program_.stage().front()->picture()).image();
        std::vector<double> around;
        for (const QRect& strip : QRegion(inside.adjusted(-2, -2, 2, 2) & page.rect()) - QRegion(inside)) {
            const std::vector<double> more = Luminances(page, strip, 1);
            around.insert(around.end(), more.begin(), more.end());
        }
        if (!IsCalm(around))
            faults_.insert(Described(control.name(), control.box(), displays_[0]) +
                           "a key touches something");
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

    const Faults& faults() const { return faults_; }

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
    std::array<Screen, 4> displays_{{{640, 480, 1}, {1366, 768, 40}, {1920, 1080, 80}, {3840, 2160, 160}}};
    int actions_ = 0;
    std::set<const Control*> seen_;
    std::set<std::tuple<const Control*, int, int>> looked_around_;
    Faults faults_;
};

TEST(Legibility, EveryTextStandsOutFromWhatLiesUnderIt) {
    Reader reader;
    for (int i = 0; i < 4000 || (i < 40'000 && !reader.Unseen().empty()); ++i) reader.ActAndLook();
    for (const std::string& fault : reader.faults()) ADD_FAILURE() << fault;
    EXPECT_EQ(reader.Unseen(), "");
}

}  // namespace

}  // namespace onze
