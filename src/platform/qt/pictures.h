#pragma once

#include <QImage>

#include "services/pictures.h"

namespace onze {

class QtPicture final : public Picture {
  public:
    explicit QtPicture(QImage image) : image_(std::move(image)) {}

    int WidthInPixels() const override { return image_.width(); }
    int HeightInPixels() const override { return image_.height(); }

    // As it was stored: a picture of few colours stays small.
    const QImage& image() const { return image_; }
    // Of the larger picture where there is one, which is read once, or else the same.
    const QImage& LargestImage() const;
    // Reads it ahead; tells whether there was anything to read.
    bool ReadAhead() const { return !largest_ && !LargestImage().isNull(); }

    friend bool operator==(const QtPicture& a, const QtPicture& b) { return a.image_ == b.image_; }

  private:
    QImage image_;
    mutable std::shared_ptr<const QtPicture> largest_;  // null until it is asked for
};

class QtPictures final : public Pictures {
  public:
    PicturePtr Decode(std::string_view name, std::span<const std::byte> file) override;
    PicturePtr Clip(const Picture& picture, int x, int y, int width, int height) override;
};

}  // namespace onze
