#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QtTest/QTest>

#include "forms/label.h"
#include "forms/up_down.h"
#include "platform/qt/accessible.h"
#include "platform/qt/host.h"
#include "platform/qt/window.h"
#include "support/random.h"

namespace onze {

namespace {

constexpr int kPatienceMs = 600'000;  // what takes longer will never come

// Counts how often it is painted.
class Probe final : public Control {
  public:
    Probe(Form& form, const Rect& box) : Control(form, box, Role::kDecoration) {}
    void Paint(Canvas&) const override { ++paints; }
    mutable int paints = 0;
};

// A page of a few controls in the real window, filling the screen.
class QtWindow : public testing::Test {
  protected:
    QtWindow() {
        button.on_click = [this] { ++clicks; };
        program.screens().depart.timer.Stop();
        form.Show();
        AskForDisplay(640, 480);
        window.Present();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window, kPatienceMs));
    }

    void AskForDisplay(std::uint32_t width, std::uint32_t height) {
        DisplayModeRecord record{};
        record.dmPelsWidth = width;
        record.dmPelsHeight = height;
        host.desktop.ChangeDisplaySettingsA(record, 0);
    }
    QPoint On(Point point) const {
        const Pixel pixel = program.view().ToPixels(point);
        return QPoint(pixel.x, pixel.y) / window.devicePixelRatio();
    }
    void Click(Point point) { QTest::mouseClick(&window, Qt::LeftButton, {}, On(point)); }
    void TurnWheel(Point point, int eighths_of_degrees) {
        QWheelEvent event(On(point), On(point), {}, {0, eighths_of_degrees}, {}, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&window, &event);
    }
    QtHost host{DATAS_DIR};
    ClockRandom random;
    Program program{host, random};
    const Reaction start = program.Take(event::Started());
    Stage& stage = program.stage();
    Form form{stage};
    Probe other{form, {20_px, 400_px, 20_px, 20_px}};
    Probe probe{form, {600_px, 400_px, 20_px, 20_px}};
    Label button{form, {100_px, 100_px, 50_px, 20_px}, "OUI", {}};
    Label answer{form, {200_px, 100_px, 30_px, 20_px}, "??", {}};
    UpDown arrows{form, {240_px, 100_px, 20_px, 30_px}, {0, 1000}, answer};
    Window window{program, host};
    int clicks = 0;
};

constexpr Point kOnButton{125_px, 110_px};
constexpr Point kOnUpperHalf{250_px, 105_px};

TEST_F(QtWindow, FillsTheScreenUntilTheOldSizeIsAskedFor) {
    EXPECT_TRUE(window.windowStates() & Qt::WindowFullScreen);
    EXPECT_EQ(window.size(), window.screen()->size());
    button.on_click = [this] { AskForDisplay(1024, 768); };
    Click(kOnButton);
    EXPECT_FALSE(window.windowStates() & Qt::WindowFullScreen);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(QtWindow, TakesAFingerForThePointer) {
    const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
    QTest::touchEvent(&window, finger.get()).press(0, On(kOnButton), &window);
    QTest::touchEvent(&window, finger.get()).release(0, On(kOnButton), &window);
    EXPECT_EQ(clicks, 1);
    // A second finger counts for nothing, and a swipe is no click.
    QTest::touchEvent(&window, finger.get()).press(0, On(kOnButton), &window);
    QTest::touchEvent(&window, finger.get()).stationary(0).press(1, On(kOnUpperHalf), &window);
    QTest::touchEvent(&window, finger.get()).stationary(0).release(1, On(kOnUpperHalf), &window);
    QTest::touchEvent(&window, finger.get()).release(0, On(kOnButton), &window);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(arrows.value(), 0);
    QTest::touchEvent(&window, finger.get()).press(0, On(kOnButton), &window);
    QTest::touchEvent(&window, finger.get()).move(0, On({125_px, 300_px}), &window);
    QTest::touchEvent(&window, finger.get()).release(0, On({125_px, 300_px}), &window);
    EXPECT_EQ(clicks, 2);
}

// Nothing here opens the sheet, so that its place is told.
TEST_F(QtWindow, PrintsIntoANewFile) {
    const QTemporaryDir home;
    const QByteArray former = qgetenv("HOME");
    qputenv("HOME", home.path().toUtf8());
    const auto print = [this] {
        QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
        Click(kOnButton);
        QWindow* const report = QGuiApplication::modalWindow();
        if (report) QTest::keyClick(report, Qt::Key_Return);
        return report != nullptr;
    };
    EXPECT_TRUE(print());
    EXPECT_TRUE(print());
    QDir folder(home.path() + "/Documents");
    EXPECT_EQ(folder.entryList(QDir::Files), (QStringList{"Onze Tables (2).pdf", "Onze Tables.pdf"}));
    QFile file(folder.filePath("Onze Tables.pdf"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray sheet = file.readAll();
    EXPECT_TRUE(sheet.startsWith("%PDF"));
    EXPECT_TRUE(sheet.contains("/ToUnicode")) << "its texts are texts";

    folder.removeRecursively();
    QFile in_the_way(folder.path());
    EXPECT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    EXPECT_TRUE(print());
    EXPECT_EQ(clicks, 0);
    Click(kOnButton);
    EXPECT_EQ(clicks, 1) << "the run goes on";
    qputenv("HOME", former);
}

TEST_F(QtWindow, StepsTheWheelByWholeNotches) {
    TurnWheel(kOnUpperHalf, 240);
    EXPECT_EQ(arrows.value(), 2);
}

TEST_F(QtWindow, PaintsOnlyWhatChangedAndThatOnce) {
    const auto is_painted = [](const Probe& each) {
        return QTest::qWaitFor([&each] { return each.paints > 0; }, kPatienceMs);
    };
    QCoreApplication::processEvents();
    probe.paints = other.paints = 0;
    window.update();
    EXPECT_TRUE(is_painted(probe));

    probe.paints = other.paints = 0;
    button.on_click = [this] { probe.SetLeft(580_px); };
    Click(kOnButton);
    EXPECT_TRUE(is_painted(probe));
    EXPECT_EQ(other.paints, 0);
    button.on_click = [this] { other.SetLeft(40_px); };
    Click(kOnButton);
    EXPECT_TRUE(is_painted(other));
    EXPECT_EQ(probe.paints, 1);
}

TEST_F(QtWindow, EndsAPressThatItCannotFinish) {
    QFocusEvent focus_lost(QEvent::FocusOut);
    QTest::mousePress(&window, Qt::LeftButton, {}, On(kOnUpperHalf));
    EXPECT_TRUE(stage.NextDue());
    QCoreApplication::sendEvent(&window, &focus_lost);
    EXPECT_FALSE(stage.NextDue());
    QTest::mouseRelease(&window, Qt::LeftButton, {}, On(kOnUpperHalf));

    QTest::mousePress(&window, Qt::LeftButton, {}, On(kOnUpperHalf));
    QMouseEvent moved(QEvent::MouseMove, On(kOnUpperHalf), On(kOnUpperHalf), Qt::NoButton, {}, {});
    QCoreApplication::sendEvent(&window, &moved);
    EXPECT_FALSE(stage.NextDue());
    QTest::mouseRelease(&window, Qt::LeftButton, {}, On(kOnUpperHalf));
}

// A reader sees names, roles, values; it has no other way to the program.
TEST_F(QtWindow, AReaderReadsThePageAndAnswers) {
    QAccessibleInterface* const page = window.accessibleRoot();
    const auto find = [page](const QString& name) -> QAccessibleInterface* {
        for (int i = 0; i < page->childCount(); ++i) {
            if (page->child(i)->text(QAccessible::Name).startsWith(name)) return page->child(i);
        }
        return nullptr;
    };
    const auto press = [](QAccessibleInterface* item) {
        item->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    program.screens().depart.form.Show();
    press(find("Jouons avec la Table de 7"));
    EXPECT_TRUE(program.stage().front() == &program.screens().apprendre.form);
    EXPECT_EQ(find("Jouons avec la Table de 7")->role(), QAccessible::Heading);
    EXPECT_TRUE(find("Table de 7 : 1 fois 7 égale 7 ; 2 fois 7 égale 14 ;"));

    QAccessibleInterface* const factor = find("Réponse :");
    EXPECT_EQ(factor->role(), QAccessible::SpinBox);
    EXPECT_TRUE(factor->text(QAccessible::Name).endsWith(" égale 7 fois à trouver"));
    EXPECT_EQ(factor->text(QAccessible::Value), "à trouver");
    EXPECT_EQ(factor->valueInterface()->maximumValue().toInt(), 50);
    EXPECT_TRUE(factor->state().focused);
    EXPECT_TRUE(window.geometry().contains(factor->rect()));
    factor->valueInterface()->setCurrentValue(5);
    factor->valueInterface()->setCurrentValue(50);  // is no continuation
    find("Réponse : A fois 7")->valueInterface()->setCurrentValue('B');
    EXPECT_TRUE(find("Réponse : B fois 7"));
    factor->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(factor->text(QAccessible::Value), "49");
    press(factor);
    EXPECT_TRUE(find("Erreur !"));
    EXPECT_EQ(page->focusChild()->text(QAccessible::Name), "Continuer");
    EXPECT_EQ(factor->role(), QAccessible::StaticText);
    EXPECT_TRUE(factor->actionInterface()->actionNames().isEmpty());
}

}  // namespace

}  // namespace onze
