#include "platform/qt/window.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleHints>
#include <QTransform>
#include <QWheelEvent>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "forms/ground.h"
#include "platform/qt/accessible.h"
#include "platform/qt/canvas.h"
#include "platform/qt/host.h"
#include "platform/qt/keys.h"
#include "platform/qt/printer.h"
#include "platform/qt/report_window.h"

namespace onze {

namespace {

const QtPicture& AsQt(const PicturePtr& picture) {
    return static_cast<const QtPicture&>(*picture);
}

event::PointerPressed Pressed(const QMouseEvent& event, Pixel at, double pixel_ratio) {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool finger = event.deviceType() == QInputDevice::DeviceType::TouchScreen;
    const int distance = finger ? hints.touchDoubleTapDistance() : hints.mouseDoubleClickDistance();
    return {.at = at,
            .finger = finger,
            .time = static_cast<std::int64_t>(event.timestamp()),
            .double_click_time = hints.mouseDoubleClickInterval(),
            .double_click_distance = distance * pixel_ratio};
}

}  // namespace

Window::Window(Program& program, QtHost& host) : program_(program), host_(host) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { Take(event::TimePassed()); });
    QObject::connect(&next_, &QTimer::timeout, this, &Window::ScaleNext);
}

Window::~Window() = default;

void Window::Present() {
    fills_screen_ = host_.desktop.fills_screen();
    if (fills_screen_) {
        // Where there is no window manager the state alone does nothing, and the screen's changes are not
        // followed.
        setGeometry(screen()->geometry());
        QObject::connect(screen(), &QScreen::geometryChanged, this, &Window::FollowScreen,
                         Qt::UniqueConnection);
        showFullScreen();
    } else {
        resize(kPageWidth / kTwipsPerPixel, kPageHeight / kTwipsPerPixel);
        showNormal();
    }
    TellSize();
    QueuePages();
}

void Window::FollowScreen(const QRect& geometry) {
    if (fills_screen_) setGeometry(geometry);
}

void Window::TellSize() {
    const QSize size = (QSizeF(this->size()) * devicePixelRatio()).toSize();
    if (size == told_size_) return;
    told_size_ = size;
    Take(event::WindowResized{size.width(), size.height()});
}

void Window::Follow(const Reaction& reaction) {
    if (reaction.state != Reaction::State::kRuns) {
        failure_ = reaction.failure;
        QCoreApplication::exit(reaction.state == Reaction::State::kEnded ? 0 : 1);
        return;
    }
    if (accessible_) accessible_->Tell(reaction);
    if (fills_screen_ != host_.desktop.fills_screen()) Present();
    if (!reaction.repaint.empty()) update(ToLogical(reaction.repaint));
    const Qt::CursorShape shape = reaction.hand ? Qt::PointingHandCursor : Qt::ArrowCursor;
    if (cursor().shape() != shape) setCursor(shape);
    if (reaction.wake_at) {
        const std::int64_t wait = *reaction.wake_at - host_.clock.TickCount();
        timer_.start(std::chrono::milliseconds(std::max<std::int64_t>(0, wait)));
    } else {
        timer_.stop();
    }
    if (reaction.print) Print();
}

void Window::Print() {
    Sheet sheet;
    {
        ScaledPictures pictures;
        QPainter painter(&sheet.device());
        painter.setRenderHint(QPainter::LosslessImageRendering);
        QtCanvas canvas(painter, sheet.view(), host_.fonts, pictures);
        Follow(program_.PaintOnPaper(canvas));
    }
    const std::string trouble = sheet.Hand();
    if (trouble.empty()) return;
    report_ = std::make_unique<ReportWindow>(title(), QString::fromStdString(trouble));
    report_->setTransientParent(this);
    report_->Present();
}

void Window::mouseMoveEvent(QMouseEvent* event) {
    // A release that went elsewhere.
    if (!(event->buttons() & Qt::LeftButton)) Take(event::PointerLost());
    Take(event::PointerMoved{PixelAt(*event)});
}

void Window::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Take(Pressed(*event, PixelAt(*event), devicePixelRatio()));
}

void Window::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Take(event::PointerReleased{PixelAt(*event)});
}

void Window::keyPressEvent(QKeyEvent* event) {
    if (const auto press = KeyPressOf(*event)) Take(event::KeyPressed{*press});
}

void Window::wheelEvent(QWheelEvent* event) {
    Take(event::WheelTurned{PixelAt(*event), event->angleDelta().y()});
}

void Window::focusOutEvent(QFocusEvent*) {
    Take(event::PointerLost());
}

void Window::resizeEvent(QResizeEvent*) {
    TellSize();
}

QSize Window::PageSize() const {
    const PixelBox page = program_.view().page();
    return {page.width, page.height};
}

void Window::QueuePages() {
    const Form* const first = program_.stage().front();
    if (!to_scale_.empty() || !first) return;
    const Screens& screens = program_.screens();
    to_scale_ = {screens.bilan.form.picture(),     screens.pythagore.form.picture(),
                 screens.leçon.form.picture(),     screens.exercices.form.picture(),
                 screens.apprendre.form.picture(), first->picture()};
    std::erase(to_scale_, nullptr);
    pictures_.set_small_only(program_.view().enlargement() > kWorthLarger);
}

void Window::ScaleNext() {
    pictures_.set_small_only(false);
    if (to_scale_.empty() || !pictures_.HasRoomFor(PageSize())) {
        program_.screens().divers.anim.picture->ReadLarger();
        next_.stop();
        to_scale_.clear();
        return;
    }
    const PicturePtr page = to_scale_.back();
    to_scale_.pop_back();
    pictures_.AtSize(AsQt(page), PageSize(), PageSize());
    if (page == program_.stage().front()->picture()) update();
}

void Window::PaintGround(QPainter& painter, const QRegion& region) const {
    for (const QRect& bar : region) {
        const PixelBox part{bar.left(), bar.top(), bar.width(), bar.height()};
        for (const auto& [box, color] : GroundIn(program_.view(), part))
            painter.fillRect(box.left, box.top, box.width, box.height,
                             QColor(color.red, color.green, color.blue));
    }
}

void Window::paintEvent(QPaintEvent* event) {
    TellSize();  // which changes with the screen's scale, too
    const PixelBox part = ToPixels(event->region().boundingRect());
    const QRect shown(part.left, part.top, part.width, part.height);
    const PixelBox page = program_.view().page();
    const QRect page_box(page.left, page.top, page.width, page.height);
    QPainter painter(this);
    painter.scale(1 / devicePixelRatio(), 1 / devicePixelRatio());
    PaintGround(painter, QRegion(shown).subtracted(page_box));
    painter.setClipRect(shown & page_box);
    QtCanvas canvas(painter, program_.view(), host_.fonts, pictures_);
    Follow(program_.Paint(canvas, part));
    if (!to_scale_.empty() && program_.view().enlargement() > kWorthLarger) next_.start();
}

QAccessibleInterface* Window::accessibleRoot() const {
    if (!accessible_) accessible_ = new AccessiblePage(const_cast<Window&>(*this), program_);
    return accessible_;
}

QRect Window::OnScreen(const Rect& part) const {
    return ToLogical(program_.view().Around(part)).translated(geometry().topLeft());
}

Pixel Window::PixelAt(const QSinglePointEvent& event) const {
    const QPointF place = event.position() * devicePixelRatio();
    return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

QRect Window::ToLogical(const PixelBox& pixels) const {
    const QRectF box(pixels.left, pixels.top, pixels.width, pixels.height);
    const double ratio = 1 / devicePixelRatio();
    return QTransform::fromScale(ratio, ratio).mapRect(box).toAlignedRect();
}

PixelBox Window::ToPixels(const QRect& logical) const {
    const double ratio = devicePixelRatio();
    const QRect box = QTransform::fromScale(ratio, ratio).mapRect(QRectF(logical)).toAlignedRect();
    return {box.left(), box.top(), box.width(), box.height()};
}

}  // namespace onze
