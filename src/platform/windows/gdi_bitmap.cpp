#include "platform/windows/gdi_bitmap.h"

#include <cstddef>
#include <new>

namespace onze {

GdiBitmap::GdiBitmap(int width, int height) : width_(width), height_(height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    dc_ = CreateCompatibleDC(nullptr);
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &pixels_, nullptr, 0);
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

std::uint32_t* GdiBitmap::Row(int y) const {
    return static_cast<std::uint32_t*>(pixels_) + static_cast<std::ptrdiff_t>(y) * width_;
}

}  // namespace onze
