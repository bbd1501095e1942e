#include "platform/windows/gdi_picture.h"

#include <shlwapi.h>

#include <algorithm>

#include "platform/windows/gdi_plus.h"
#include "support/whole_picture.h"

namespace {

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

}  // namespace

void GdiPicture::DrawOn(HDC dc, int x, int y) const {
    const int width = bitmap_.width();
    const int height = bitmap_.height();
    if (opaque_) {
        BitBlt(dc, x, y, width, height, bitmap_.dc(), 0, 0, SRCCOPY);
    } else {
        constexpr BLENDFUNCTION kOwnAlpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        AlphaBlend(dc, x, y, width, height, bitmap_.dc(), 0, 0, width, height, kOwnAlpha);
    }
}

std::shared_ptr<GdiPicture> GdiPicture::Clip(int x, int y, int width, int height) const {
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

std::shared_ptr<GdiPicture> DecodePicture(std::span<const std::byte> bytes) {
    return DecodeWhole(bytes, GdiPicture::Decode);
}
