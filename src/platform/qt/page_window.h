#pragma once

#include <QRasterWindow>
#include <QSinglePointEvent>
#include <QTimer>
#include <exception>

#include "forms/stage.h"
#include "platform/qt/page_view.h"
#include "platform/qt/scaled_pictures.h"

class QtPlatform;

// The one window: it shows the page, brings events to it and wakes up when one of its timers is due. An error
// in any of them ends the event loop, to be rethrown outside of it.
class PageWindow final : public QRasterWindow {
  public:
    PageWindow(Stage& stage, QtPlatform& platform);

    // Shows the window as the display that was asked for has it.
    void Present();
    // Throws what ended the event loop, if an error did.
    void RethrowFailure() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // Runs a step, keeping an error that it throws from the event loop.
    template <class Step>
    void Run(Step step);
    // Runs a step of the page, then brings the window up to date with it.
    template <class Step>
    void Handle(Step step);
    void Follow();
    void Paint(const QRect& part);

    PageView View() const;
    Point PointAt(const QSinglePointEvent& event);
    DoubleClick DoubleClickRule(const QSinglePointEvent& event) const;
    QRect ToLogical(const QRect& device) const;
    QRect ToDevice(const QRect& logical) const;

    Stage& stage_;
    QtPlatform& platform_;
    QTimer timer_;
    ScaledPictures pictures_;
    bool fills_screen_ = false;
    Point pointer_;
    int wheel_turned_ = 0;  // since the last whole notch, in eighths of a degree
    std::exception_ptr failure_;
};
