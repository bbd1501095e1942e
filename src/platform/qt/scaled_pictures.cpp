#include "platform/qt/scaled_pictures.h"

namespace onze {

namespace {

constexpr qsizetype kBytesPerPixel = 4;

// The two formats that are painted fastest.
QImage::Format FastFormat(const QImage& image) {
    return image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

QImage Scaled(const QImage& image, QSize size) {
    const QImage fast = image.convertToFormat(FastFormat(image));
    return fast.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(fast.format());
}

}  // namespace

QImage ScaledPictures::AtSize(const QtPicture& picture, QSize size, QSize page) {
    const qint64 key = picture.image().cacheKey();
    const QImage* kept = kept_.object(key);
    if (kept && kept->size() == size) return *kept;
    const bool enlarged = size.width() > kWorthLarger * picture.WidthInPixels();
    QImage scaled = Scaled(enlarged ? picture.LargestImage() : picture.image(), size);
    // Half as much again for the small pictures on it.
    kept_.setMaxCost(kBytesPerPixel * page.width() * page.height() * 3 / 2);
    kept_.insert(key, new QImage(scaled), scaled.sizeInBytes());
    return scaled;
}

}  // namespace onze
