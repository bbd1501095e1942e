#include "platform/qt/scaled_pictures.h"

#include <algorithm>

namespace onze {

namespace {

constexpr qsizetype kBytesPerPixel = 4;
constexpr qsizetype kPages = 6;
constexpr qsizetype kMostBytes = 48 << 20;

qsizetype BytesOf(QSize size) {
    return kBytesPerPixel * size.width() * size.height();
}

// Half as much as a page for the small pictures on it.
qsizetype MostBytes(QSize page) {
    const qsizetype half = BytesOf(page) / 2;
    return std::max(3 * half, std::min((2 * kPages + 1) * half, kMostBytes));
}

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
    const QImage* const kept = kept_.object(picture.image().cacheKey());
    if (kept && kept->size() == size) return *kept;
    if (small_only_) return Scaled(picture.image(), size);
    const bool enlarged = size.width() > kWorthLarger * picture.WidthInPixels();
    QImage scaled = Scaled(enlarged ? picture.ReadLargestImage() : picture.image(), size);
    kept_.setMaxCost(MostBytes(page));
    kept_.insert(picture.image().cacheKey(), new QImage(scaled), scaled.sizeInBytes());
    return scaled;
}

bool ScaledPictures::HasRoomFor(QSize page) const {
    return kept_.totalCost() + BytesOf(page) * 3 / 2 <= MostBytes(page);
}

}  // namespace onze
