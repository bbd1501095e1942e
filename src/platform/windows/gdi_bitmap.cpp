#include "platform/windows/gdi_bitmap.h"

#include <cstddef>
#include <new>

namespace onze {

GdiBitmap::GdiBitmap(int width, int height) : width_(width), height_(height) {
    const BITMAPINFO layout = info();
    dc_ = CreateCompatibleDC(nullptr);
    bitmap_ = CreateDIBSection(dc_, &layout, DIB_RGB_COLORS, &pixels_, nullptr, 0);
    if (!bitmap_) {
        DeleteDC(dc_);
        throw std::bad_alloc();
    }
    former_bitmap_ = SelectObject(dc_, bitmap_);
}

GdiBitmap::~GdiBitmap() {
    SelectObject(dc_, former_bitmap_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
}

BITMAPINFO GdiBitmap::info() const {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

std::uint32_t* GdiBitmap::Row(int y) const {
    return static_cast<std::uint32_t*>(pixels_) + static_cast<std::ptrdiff_t>(y) * width_;
}

}  // namespace onze
