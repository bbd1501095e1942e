#pragma once

#include "forms/page_view.h"
#include "services/pictures.h"

namespace onze {

// A part of a picture that the browser holds.
class WebPicture final : public Picture {
  public:
    WebPicture(int number, const PixelBox& part) : number_(number), part_(part) {}

    int WidthInPixels() const override { return part_.width; }
    int HeightInPixels() const override { return part_.height; }

    int number() const { return number_; }
    const PixelBox& part() const { return part_; }
    // The larger picture once it is there, until then the same.
    const WebPicture& Largest() const;

  private:
    int number_;
    PixelBox part_;
    mutable PicturePtr larger_;
};

// The page's script decodes the files of the site when it loads them.
class WebPictures final : public Pictures {
  public:
    PicturePtr Decode(std::string_view name, std::span<const std::byte> file) override;
    PicturePtr Clip(const Picture& picture, int x, int y, int width, int height) override;
};

}  // namespace onze
