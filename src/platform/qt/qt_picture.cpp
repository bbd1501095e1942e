#include "platform/qt/qt_picture.h"

#include <QImageReader>

std::shared_ptr<const QtPicture> ReadPicture(QIODevice& device) {
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    return image.isNull() ? nullptr : std::make_shared<const QtPicture>(std::move(image));
}
