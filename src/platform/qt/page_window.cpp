#include "platform/qt/page_window.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleHints>
#include <QTransform>
#include <QWheelEvent>
#include <algorithm>
#include <chrono>

#include "platform/qt/painter_canvas.h"
#include "platform/qt/qt_platform.h"

namespace {

constexpr int kNotch = 120;  // of a wheel, in eighths of a degree

}  // namespace

PageWindow::PageWindow(Stage& stage, QtPlatform& platform) : stage_(stage), platform_(platform) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { Handle([this] { stage_.RunDue(); }); });
}

void PageWindow::Present() {
    if (!isVisible()) stage_.TakeDamage();  // the whole window will be painted
    fills_screen_ = platform_.fills_screen();
    if (fills_screen_) {
        // Where there is no window manager the state alone does nothing.
        setGeometry(screen()->geometry());
        showFullScreen();
    } else {
        resize(kPageWidth / kTwipsPerPixel, kPageHeight / kTwipsPerPixel);
        showNormal();
    }
    Follow();
}

void PageWindow::RethrowFailure() const {
    if (failure_) std::rethrow_exception(failure_);
}

template <class Step>
void PageWindow::Run(Step step) {
    if (failure_ || platform_.ended()) return;
    try {
        step();
    } catch (...) {
        failure_ = std::current_exception();
        QCoreApplication::exit(1);
    }
}

template <class Step>
void PageWindow::Handle(Step step) {
    Run([&] {
        step();
        if (fills_screen_ != platform_.fills_screen()) Present();
        Follow();
    });
}

void PageWindow::Follow() {
    const Rect damage = stage_.TakeDamage();
    if (!damage.empty()) update(ToLogical(View().Around(damage)));
    const Qt::CursorShape shape = stage_.ReactsToClickAt(pointer_) ? Qt::PointingHandCursor : Qt::ArrowCursor;
    if (cursor().shape() != shape) setCursor(shape);
    if (const auto due = stage_.NextDue()) {
        timer_.start(std::chrono::milliseconds(std::max<std::int64_t>(0, *due - platform_.TickCount())));
    }
}

void PageWindow::mouseMoveEvent(QMouseEvent* event) {
    Handle([&] {
        if (!(event->buttons() & Qt::LeftButton)) stage_.CancelPress();  // whose release went elsewhere
        stage_.Move(PointAt(*event));
    });
}

void PageWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    Handle([&] { stage_.Press(PointAt(*event), DoubleClickRule(*event)); });
}

void PageWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Handle([&] { stage_.Release(PointAt(*event)); });
}

void PageWindow::wheelEvent(QWheelEvent* event) {
    wheel_turned_ += event->angleDelta().y();
    const int notches = wheel_turned_ / kNotch;
    wheel_turned_ %= kNotch;
    if (notches != 0) Handle([&] { stage_.Wheel(PointAt(*event), notches); });
}

void PageWindow::focusOutEvent(QFocusEvent*) {
    Handle([&] { stage_.CancelPress(); });
}

void PageWindow::paintEvent(QPaintEvent* event) {
    Run([&] { Paint(ToDevice(event->region().boundingRect())); });
}

void PageWindow::Paint(const QRect& part) {
    const PageView view = View();
    QPainter painter(this);
    painter.scale(1 / devicePixelRatio(), 1 / devicePixelRatio());
    for (const QRect& bar : QRegion(part).subtracted(view.page())) painter.fillRect(bar, Qt::black);
    painter.setClipRect(part & view.page());
    PainterCanvas canvas(painter, view, platform_.fonts(), pictures_);
    stage_.Paint(canvas, view.Around(part));
}

PageView PageWindow::View() const {
    return PageView::Fitting((QSizeF(size()) * devicePixelRatio()).toSize());
}

Point PageWindow::PointAt(const QSinglePointEvent& event) {
    pointer_ = View().ToPage(event.position() * devicePixelRatio());
    return pointer_;
}

DoubleClick PageWindow::DoubleClickRule(const QSinglePointEvent& event) const {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool finger = event.deviceType() == QInputDevice::DeviceType::TouchScreen;
    const int pixels = finger ? hints.touchDoubleTapDistance() : hints.mouseDoubleClickDistance();
    return {.pressed_at = static_cast<std::int64_t>(event.timestamp()),
            .time = hints.mouseDoubleClickInterval(),
            .distance = qRound(pixels * devicePixelRatio() / View().scale())};
}

QRect PageWindow::ToLogical(const QRect& device) const {
    const double ratio = 1 / devicePixelRatio();
    return QTransform::fromScale(ratio, ratio).mapRect(QRectF(device)).toAlignedRect();
}

QRect PageWindow::ToDevice(const QRect& logical) const {
    const double ratio = devicePixelRatio();
    return QTransform::fromScale(ratio, ratio).mapRect(QRectF(logical)).toAlignedRect();
}
