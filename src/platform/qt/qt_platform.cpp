#include "platform/qt/qt_platform.h"

#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <chrono>

#include "platform/qt/local_time.h"
#include "platform/qt/qt_picture.h"
#include "platform/qt/replace_content.h"
#include "support/run_time_error.h"

namespace {

QSize ScreenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? (QSizeF(screen->size()) * screen->devicePixelRatio()).toSize() : QSize();
}

}  // namespace

std::filesystem::path FindExecutableFolder(const std::filesystem::path& started_as) {
    std::error_code none;
    const auto itself = std::filesystem::read_symlink("/proc/self/exe");
    if (started_as.has_parent_path() && std::filesystem::equivalent(started_as, itself, none)) {
        auto folder = std::filesystem::canonical(started_as.parent_path());
        if (std::filesystem::is_directory(folder / "datas", none)) return folder;
    }
    return itself.parent_path();
}

PicturePtr QtPlatform::LoadPicture(const std::filesystem::path& file) {
    QFile device(file);
    const QByteArray content = device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray();
    auto picture = DecodePicture(std::as_bytes(std::span(content)));
    if (!picture) throw FileError("Image introuvable ou illisible", file);
    return picture;
}

PicturePtr QtPlatform::LoadPicture(std::span<const std::byte> bytes) {
    auto picture = DecodePicture(bytes);
    if (!picture) throw RunTimeError("Image illisible.");
    return picture;
}

PicturePtr QtPlatform::ClipPicture(const PicturePtr& picture, int x, int y, int width, int height) {
    const QImage& whole = static_cast<const QtPicture&>(*picture).image();
    const QRect part(x, y, width, height);
    if (part.isEmpty() || !whole.rect().contains(part)) throw RunTimeError("Découpe hors de l'image.");
    return std::make_shared<QtPicture>(whole.copy(part));
}

void QtPlatform::ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes) {
    ::ReplaceContent(file, bytes);
}

int QtPlatform::EnumDisplaySettingsA(std::int32_t mode, DisplayModeRecord& record) {
    if (mode != 0) return 0;
    record.dmPelsWidth = static_cast<std::uint32_t>(ScreenWidthInPixels());
    record.dmPelsHeight = static_cast<std::uint32_t>(ScreenHeightInPixels());
    return 1;
}

void QtPlatform::ChangeDisplaySettingsA(const DisplayModeRecord& record, std::uint32_t) {
    fills_screen_ = record.dmPelsWidth == kPageWidth / kTwipsPerPixel &&
                    record.dmPelsHeight == kPageHeight / kTwipsPerPixel;
}

int QtPlatform::ScreenWidthInPixels() const {
    return ScreenSize().width();
}

int QtPlatform::ScreenHeightInPixels() const {
    return ScreenSize().height();
}

std::string QtPlatform::LongDate() const {
    return LongDateText(QLocale::system(), QDate::currentDate());
}

std::string QtPlatform::TimeOfDay() const {
    return TimeText(QLocale::system(), QTime::currentTime());
}

std::int64_t QtPlatform::TickCount() const {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void QtPlatform::EndProgram() {
    ended_ = true;
    QCoreApplication::exit(0);
}
