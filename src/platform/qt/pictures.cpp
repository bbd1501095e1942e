#include "platform/qt/pictures.h"

#include <QBuffer>
#include <QImageReader>

#include "support/whole_picture.h"

namespace onze {

namespace {

std::shared_ptr<const QtPicture> DecodeAny(std::span<const std::byte> bytes) {
    QByteArray content = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                 static_cast<qsizetype>(bytes.size()));
    QBuffer device(&content);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    return image.isNull() ? nullptr : std::make_shared<const QtPicture>(std::move(image));
}

}  // namespace

QImage QtPicture::ReadLargestImage() const {
    const PicturePtr larger = ReadLarger();
    return larger ? static_cast<const QtPicture&>(*larger).image_ : image_;
}

PicturePtr QtPictures::Decode(std::string_view, std::span<const std::byte> file) {
    return DecodeWhole(file, DecodeAny);
}

PicturePtr QtPictures::Clip(const Picture& picture, int x, int y, int width, int height) {
    return std::make_shared<QtPicture>(
        static_cast<const QtPicture&>(picture).image().copy(x, y, width, height));
}

}  // namespace onze
