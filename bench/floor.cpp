// floor PICTURE: a bare Qt window that shows one picture, or black after each other click. Nothing that shows
// a page with Qt starts faster, or in less memory; what the program takes beyond this is its own.

#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QRasterWindow>

namespace {

class PictureWindow final : public QRasterWindow {
  public:
    explicit PictureWindow(const QString& file) : picture_(file) { resize(picture_.size()); }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        if (black_) {
            painter.fillRect(event->rect(), Qt::black);
        } else {
            painter.drawImage(0, 0, picture_);
        }
    }
    void mouseReleaseEvent(QMouseEvent*) override {
        black_ = !black_;
        update();
    }

  private:
    QImage picture_;
    bool black_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 2) return 2;
    PictureWindow window(QString::fromLocal8Bit(argv[1]));
    window.show();
    return QGuiApplication::exec();
}
