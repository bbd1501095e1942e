#include "platform/windows/pictures.h"

#include <shlwapi.h>

#include <algorithm>

#include "platform/windows/gdi_plus.h"
#include "support/whole_picture.h"

namespace onze {

namespace {

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

}  // namespace

void GdiPicture::DrawOn(HDC dc, int x, int y, int width, int height) const {
    const HDC source = AtSize(width, height).dc();
    if (opaque_) {
        BitBlt(dc, x, y, width, height, source, 0, 0, SRCCOPY);
    } else {
        constexpr BLENDFUNCTION kOwnAlpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        AlphaBlend(dc, x, y, width, height, source, 0, 0, width, height, kOwnAlpha);
    }
}

const GdiBitmap& GdiPicture::AtSize(int width, int height) const {
    if (width == bitmap_.width() && height == bitmap_.height()) return bitmap_;
    if (scaled_ && scaled_->width() == width && scaled_->height() == height) return *scaled_;
    scaled_ = std::make_unique<GdiBitmap>(width, height);
    const PicturePtr larger = width > kWorthLarger * bitmap_.width() ? ReadLarger() : nullptr;
    const GdiBitmap& source = larger ? static_cast<const GdiPicture&>(*larger).bitmap_ : bitmap_;
    Gdiplus::Bitmap from(source.width(), source.height(), 4 * source.width(), PixelFormat32bppPARGB,
                         reinterpret_cast<BYTE*>(source.Row(0)));
    Gdiplus::Bitmap to(width, height, 4 * width, PixelFormat32bppPARGB,
                       reinterpret_cast<BYTE*>(scaled_->Row(0)));
    Gdiplus::Graphics graphics(&to);
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    Gdiplus::ImageAttributes mirrored;  // at its edges, which else would mix with what is not there
    mirrored.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
    graphics.DrawImage(&from, Gdiplus::Rect(0, 0, width, height), 0, 0, source.width(), source.height(),
                       Gdiplus::UnitPixel, &mirrored);
    return *scaled_;
}

std::shared_ptr<const GdiPicture> GdiPicture::Clip(int x, int y, int width, int height) const {
    auto clip = std::make_shared<GdiPicture>(width, height);
    for (int row = 0; row < height; ++row)
        std::copy_n(bitmap_.Row(y + row) + x, width, clip->bitmap_.Row(row));
    clip->NoteOpacity();
    return clip;
}

void GdiPicture::NoteOpacity() {
    opaque_ = std::ranges::all_of(Pixels(), [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; });
}

std::span<const std::uint32_t> GdiPicture::Pixels() const {
    return {bitmap_.Row(0), bitmap_.Row(bitmap_.height())};
}

bool operator==(const GdiPicture& a, const GdiPicture& b) {
    return a.WidthInPixels() == b.WidthInPixels() && std::ranges::equal(a.Pixels(), b.Pixels());
}

std::shared_ptr<GdiPicture> GdiPicture::Decode(std::span<const std::byte> bytes) {
    const std::unique_ptr<IStream, Releaser> stream(
        SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size())));
    if (!stream) return nullptr;
    Gdiplus::Bitmap source(stream.get());
    if (source.GetLastStatus() != Gdiplus::Ok) return nullptr;
    const int width = static_cast<int>(source.GetWidth());
    const int height = static_cast<int>(source.GetHeight());
    auto picture = std::make_shared<GdiPicture>(width, height);

    Gdiplus::BitmapData data{};
    data.Width = source.GetWidth();
    data.Height = source.GetHeight();
    data.Stride = 4 * width;
    data.PixelFormat = PixelFormat32bppPARGB;
    data.Scan0 = picture->bitmap_.Row(0);
    const Gdiplus::Rect whole(0, 0, width, height);
    const UINT mode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf;
    if (source.LockBits(&whole, mode, PixelFormat32bppPARGB, &data) != Gdiplus::Ok) return nullptr;
    source.UnlockBits(&data);
    picture->NoteOpacity();
    return picture;
}

PicturePtr WindowsPictures::Decode(std::string_view, std::span<const std::byte> file) {
    return DecodeWhole(file, GdiPicture::Decode);
}

PicturePtr WindowsPictures::Clip(const Picture& picture, int x, int y, int width, int height) {
    return static_cast<const GdiPicture&>(picture).Clip(x, y, width, height);
}

}  // namespace onze
