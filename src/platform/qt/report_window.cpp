#include "platform/qt/report_window.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <algorithm>

namespace onze {

namespace {

constexpr int kMargin = 24;
constexpr int kWidestText = 480;
constexpr QSize kButtonSize(96, 32);
constexpr int kTextFlags = Qt::TextWordWrap | Qt::TextWrapAnywhere;

}  // namespace

ReportWindow::ReportWindow(const QString& title, const QString& text) : text_(text) {
    const QFontMetrics metrics(QGuiApplication::font());
    text_box_ = metrics.boundingRect(QRect(0, 0, kWidestText, 0), kTextFlags, text);
    text_box_.moveTopLeft({kMargin, kMargin});
    setTitle(title);
    setFlags(Qt::Dialog);
    setModality(Qt::ApplicationModal);
    const QSize size(std::max(text_box_.width(), kButtonSize.width()) + 2 * kMargin,
                     text_box_.height() + kButtonSize.height() + 3 * kMargin);
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
}

void ReportWindow::Present() {
    QRect place(QPoint(), size());
    place.moveCenter(screen()->availableGeometry().center());
    setPosition(place.topLeft());
    show();
    requestActivate();
}

void ReportWindow::Run() {
    Present();
    // The application's own event loop may have been told to end, by what is reported.
    while (isVisible()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

QRect ReportWindow::Button() const {
    return {QPoint(width() - kMargin - kButtonSize.width(), height() - kMargin - kButtonSize.height()),
            kButtonSize};
}

void ReportWindow::paintEvent(QPaintEvent*) {
    const QPalette colors = QGuiApplication::palette();
    QPainter painter(this);
    painter.fillRect(QRect(QPoint(), size()), colors.window());
    painter.setPen(colors.color(QPalette::WindowText));
    painter.drawText(text_box_, kTextFlags, text_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colors.color(QPalette::Highlight));
    painter.setBrush(colors.button());
    painter.drawRoundedRect(QRectF(Button()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setPen(colors.color(QPalette::ButtonText));
    painter.drawText(Button(), Qt::AlignCenter, "OK");
}

void ReportWindow::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space || key == Qt::Key_Escape)
        close();
}

void ReportWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (Button().contains(event->position().toPoint())) close();
}

}  // namespace onze
