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
    // Of the larger picture, read anew, where there is one, or else the same.
    QImage ReadLargestImage() const;

    friend bool operator==(const QtPicture& a, const QtPicture& b) { return a.image_ == b.image_; }

  private:
    QImage image_;
};

class QtPictures final : public Pictures {
  public:
    PicturePtr Decode(std::string_view name, std::span<const std::byte> file) override;
    PicturePtr Clip(const Picture& picture, int x, int y, int width, int height) override;
};

}  // namespace onze
