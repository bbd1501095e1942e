#include "platform/web/pictures.h"

#include "platform/web/browser.h"
#include "services/anim.h"
#include "support/whole_picture.h"

namespace onze {

// The strip of digits is loaded by its name, like the other pictures, and is not in the program's own bytes.
const std::span<const std::byte> kAnim{};
const std::span<const std::byte> kLargerAnim{};

const WebPicture& WebPicture::Largest() const {
    if (!larger_) larger_ = ReadLarger();
    return larger_ ? static_cast<const WebPicture&>(*larger_) : *this;
}

PicturePtr WebPictures::Decode(std::string_view name, std::span<const std::byte> file) {
    if (IsPng(file) && !HasPngEnd(file)) return nullptr;
    const int number = browser::FindPicture(name.data(), name.size());
    if (number < 0) return nullptr;
    const PixelBox whole{0, 0, browser::PictureWidth(number), browser::PictureHeight(number)};
    return std::make_shared<WebPicture>(number, whole);
}

PicturePtr WebPictures::Clip(const Picture& picture, int x, int y, int width, int height) {
    const auto& from = static_cast<const WebPicture&>(picture);
    const PixelBox part{from.part().left + x, from.part().top + y, width, height};
    return std::make_shared<WebPicture>(from.number(), part);
}

}  // namespace onze
