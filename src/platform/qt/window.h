#pragma once

#include <QRasterWindow>
#include <QSinglePointEvent>
#include <QTimer>
#include <memory>

#include "platform/qt/scaled_pictures.h"
#include "shell/program.h"

namespace onze {

class AccessiblePage;
class ReportWindow;
struct QtHost;

// The one window: it shows the page, brings events to the program and wakes up when the program wants it. The
// event loop ends when the program does.
class Window final : public QRasterWindow {
  public:
    Window(Program& program, QtHost& host);
    ~Window() override;

    // Shows the window as the display that was asked for has it.
    void Present();
    // The text of what ended the program, if it failed.
    const std::string& failure() const { return failure_; }

    void Take(const Event& event) { Follow(program_.Take(event)); }
    // Where a part of the page lies on the screen.
    QRect OnScreen(const Rect& part) const;
    QAccessibleInterface* accessibleRoot() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void Follow(const Reaction& reaction);
    void Print();
    void TellSize();
    void FollowScreen(const QRect& geometry);
    void PaintGround(QPainter& painter, const QRegion& region) const;
    // Enlarged pages need their larger pictures, which are read and scaled one by one when there is nothing
    // else to do; until then the first page is made of its small one, and so is not waited for.
    void QueuePages();
    void ScaleNext();
    QSize PageSize() const;

    Pixel PixelAt(const QSinglePointEvent& event) const;
    QRect ToLogical(const PixelBox& pixels) const;
    PixelBox ToPixels(const QRect& logical) const;

    Program& program_;
    QtHost& host_;
    QTimer timer_;
    QTimer next_;
    std::vector<PicturePtr> to_scale_;  // the last one first
    ScaledPictures pictures_;
    QSize told_size_;  // in pixels
    bool fills_screen_ = false;
    std::string failure_;
    std::unique_ptr<ReportWindow> report_;          // of what could not be printed
    mutable AccessiblePage* accessible_ = nullptr;  // Qt's, once a reader has asked for it
};

}  // namespace onze
