#pragma once

#include <QImage>
#include <cstddef>
#include <memory>
#include <span>

#include "forms/drawing.h"

class QtPicture final : public Picture {
  public:
    explicit QtPicture(QImage image);

    int WidthInPixels() const override { return image_.width(); }
    int HeightInPixels() const override { return image_.height(); }

    const QImage& image() const { return image_; }
    // The picture at another size. The last size asked for is kept, so that a page is not scaled at every
    // paint.
    const QImage& AtSize(QSize size) const;

  private:
    QImage image_;
    mutable QImage scaled_;
};

// Null when no picture can be read. Its format is recognised by the content.
std::shared_ptr<const QtPicture> DecodePicture(std::span<const std::byte> bytes);
