#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "forms/look.h"
#include "platform/qt/enlarge.h"
#include "platform/qt/painter_canvas.h"
#include "platform/qt/qt_picture.h"

namespace {

constexpr Color kPaper{250, 250, 250};
constexpr QRgb kPaperPixel = qRgb(250, 250, 250);
constexpr Rect kWholePage{0, 0, kPageWidth, kPageHeight};

const std::vector<QSize> kScreens{{640, 480},   {800, 600},   {1024, 768},  {1366, 768},
                                  {1280, 1024}, {1920, 1080}, {1080, 1920}, {517, 389}};

// A screen of some size with a page of blank paper on it.
class Sheet {
  public:
    explicit Sheet(QSize size)
        : view(PageView::Fitting(size)),
          image_(size, QImage::Format_RGB32),
          painter_(&image_),
          canvas(painter_, view, fonts) {
        image_.fill(Qt::black);
        canvas.FillBox(kWholePage, kPaper, 0);
    }

    QRgb At(QPoint pixel) const { return image_.pixel(pixel); }
    // The smallest box around everything that is not paper.
    QRect Inked() const {
        QRect inked;
        for (int y = view.page().top(); y <= view.page().bottom(); ++y) {
            for (int x = view.page().left(); x <= view.page().right(); ++x) {
                if (At({x, y}) != kPaperPixel) inked |= QRect(x, y, 1, 1);
            }
        }
        return inked;
    }

    PageView view;
    PageFonts fonts;

  private:
    QImage image_;
    QPainter painter_;

  public:
    PainterCanvas canvas;
};

TEST(QtCanvas, ThePageIsAsLargeAsTheScreenAllows) {
    const auto page = [](QSize screen) { return PageView::Fitting(screen).page(); };
    EXPECT_EQ(page({640, 480}), QRect(0, 0, 640, 480));
    EXPECT_EQ(page({1024, 768}), QRect(0, 0, 1024, 768));
    EXPECT_EQ(page({1920, 1080}), QRect(240, 0, 1440, 1080));
    EXPECT_EQ(page({1366, 768}), QRect(171, 0, 1024, 768));
    EXPECT_EQ(page({1080, 1920}), QRect(0, 555, 1080, 810));
    EXPECT_EQ(page({320, 240}), QRect(0, 0, 320, 240));
}

TEST(QtCanvas, AControlIsFoundExactlyWhereItIsPainted) {
    for (const QSize screen : kScreens) {
        SCOPED_TRACE(testing::Message() << screen.width() << " x " << screen.height());
        for (const Rect& box : {Rect{4800, 3000, 510, 855}, Rect{7051, 1653, 887, 859}, Rect{0, 0, 15, 15}}) {
            Sheet sheet(screen);
            sheet.canvas.FillBox(box, kBlack, 0);
            for (int y = sheet.view.page().top(); y <= sheet.view.page().bottom(); ++y) {
                for (int x = sheet.view.page().left(); x <= sheet.view.page().right(); ++x) {
                    const bool painted = sheet.At({x, y}) != kPaperPixel;
                    ASSERT_EQ(box.Contains(sheet.view.ToPage(QPointF(x + 0.99, y))), painted)
                        << x << "," << y;
                    ASSERT_TRUE(!painted || sheet.At({x, y}) == qRgb(0, 0, 0)) << "a soft edge";
                }
            }
        }
    }
}

// Labels are laid out once, in twips, whatever the screen is.
TEST(QtCanvas, TextTakesTheRoomItWasMeasuredFor) {
    const std::string text = "HEntrez votre réponse grâce aux flèches puis cliquez. HHHHHHHH";
    for (const QSize screen : kScreens) {
        for (const Font& font :
             {Font{8.25_pt, false}, Font{8.25_pt, true}, Font{12.0_pt, true}, Font{5.5_pt}}) {
            SCOPED_TRACE(testing::Message() << screen.width() << " wide, font of " << font.height);
            Sheet sheet(screen);
            const Point place{100_px, 203};
            sheet.canvas.DrawTextLine(place, text, font, kBlack);
            const Size cell = sheet.fonts.Measure(text, font);
            const QRect expected = sheet.view.ToDevice({place.x, place.y, cell.width, cell.height});
            const QRect inked = sheet.Inked();
            const double side = font.height * sheet.view.scale() / 8;  // the room beside an H
            EXPECT_NEAR(inked.left(), expected.left(), side + 1);
            EXPECT_NEAR(inked.right(), expected.right(), side + 1);
            EXPECT_GE(inked.top(), expected.top() - 1);
            EXPECT_LE(inked.bottom(), expected.bottom() + 1);
            EXPECT_GT(inked.height(), expected.height() / 2);
        }
    }
}

TEST(QtCanvas, PicturesFillTheirPlaceAtEveryScale) {
    QImage image(8, 6, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QtPicture picture(image);
    for (const QSize screen : kScreens) {
        Sheet sheet(screen);
        sheet.canvas.DrawPicture(picture, {45, 30});
        const QRect place = sheet.view.ToDevice(Rect{45, 30, 8_px, 6_px});
        const QRect inked = sheet.Inked();
        EXPECT_EQ(inked.topLeft(), place.topLeft());
        EXPECT_NEAR(inked.width(), place.width(), 1);
        EXPECT_NEAR(inked.height(), place.height(), 1);
        EXPECT_EQ(sheet.At(inked.bottomRight()), qRgb(255, 0, 0));
    }
}

}  // namespace
