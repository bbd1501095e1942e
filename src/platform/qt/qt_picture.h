#pragma once

#include <QImage>
#include <cstddef>
#include <memory>
#include <span>

#include "forms/drawing.h"

class QtPicture final : public Picture {
  public:
    explicit QtPicture(QImage image) : image_(std::move(image)) {}

    int WidthInPixels() const override { return image_.width(); }
    int HeightInPixels() const override { return image_.height(); }

    // As it was stored: a picture of few colours stays small.
    const QImage& image() const { return image_; }

    friend bool operator==(const QtPicture& a, const QtPicture& b) { return a.image_ == b.image_; }

  private:
    QImage image_;
};

// Null when no picture can be read, or not the whole of it. Its format is recognised by the content.
std::shared_ptr<const QtPicture> DecodePicture(std::span<const std::byte> bytes);
