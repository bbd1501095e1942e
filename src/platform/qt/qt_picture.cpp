#include "platform/qt/qt_picture.h"

#include <QBuffer>
#include <QImageReader>

#include "platform/qt/enlarge.h"
#include "support/whole_picture.h"

namespace {

// The two formats that are painted fastest.
QImage::Format FastFormat(const QImage& image) {
    return image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

QImage Scaled(const QImage& image, QSize size) {
    if (size.width() >= image.width() && size.height() >= image.height()) return Enlarged(image, size);
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(FastFormat(image));
}

}  // namespace

QtPicture::QtPicture(QImage image) : image_(std::move(image)) {
    image_.convertTo(FastFormat(image_));
}

const QImage& QtPicture::AtSize(QSize size) const {
    if (size == image_.size()) return image_;
    if (size != scaled_.size()) scaled_ = Scaled(image_, size);
    return scaled_;
}

std::shared_ptr<const QtPicture> DecodePicture(std::span<const std::byte> bytes) {
    if (IsCutShort(bytes)) return nullptr;
    QByteArray content = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                 static_cast<qsizetype>(bytes.size()));
    QBuffer device(&content);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    return image.isNull() ? nullptr : std::make_shared<const QtPicture>(std::move(image));
}
