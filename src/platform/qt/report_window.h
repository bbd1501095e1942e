#pragma once

#include <QRasterWindow>

namespace onze {

// Tells one text, such as that of an error, until it is put away with a click on "OK" or a key. A message box
// of Qt's would take the library of all its widgets, which every start would then wait for.
class ReportWindow final : public QRasterWindow {
  public:
    ReportWindow(const QString& title, const QString& text);

    // Shows it in the middle of the screen. Run() returns once it is put away.
    void Present();
    void Run();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QRect Button() const;

    QString text_;
    QRect text_box_;
};

}  // namespace onze
