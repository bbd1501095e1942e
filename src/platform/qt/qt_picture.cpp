#include "platform/qt/qt_picture.h"

#include <QBuffer>
#include <QImageReader>

#include "support/whole_picture.h"

namespace {

std::shared_ptr<const QtPicture> Decode(std::span<const std::byte> bytes) {
    QByteArray content = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                 static_cast<qsizetype>(bytes.size()));
    QBuffer device(&content);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    return image.isNull() ? nullptr : std::make_shared<const QtPicture>(std::move(image));
}

}  // namespace

std::shared_ptr<const QtPicture> DecodePicture(std::span<const std::byte> bytes) {
    return DecodeWhole(bytes, Decode);
}
