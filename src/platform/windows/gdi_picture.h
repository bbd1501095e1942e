#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include "forms/drawing.h"
#include "platform/windows/gdi_bitmap.h"

// A picture in memory, its colours multiplied by its alpha.
class GdiPicture final : public Picture {
  public:
    GdiPicture(int width, int height) : bitmap_(width, height) {}

    int WidthInPixels() const override { return bitmap_.width(); }
    int HeightInPixels() const override { return bitmap_.height(); }
    void DrawOn(HDC dc, int x, int y) const;
    // The part of it that lies inside it whole.
    std::shared_ptr<GdiPicture> Clip(int x, int y, int width, int height) const;

    // Whatever the system's loader can make of a file; null for nothing.
    static std::shared_ptr<GdiPicture> Decode(std::span<const std::byte> bytes);

    friend bool operator==(const GdiPicture& a, const GdiPicture& b);

  private:
    std::span<const std::uint32_t> Pixels() const;
    void NoteOpacity();

    GdiBitmap bitmap_;
    bool opaque_ = false;
};

// The picture in a file of any format that the system's loader knows, by content; null when it cannot be
// read, or not the whole of it. GDI+ must be started.
std::shared_ptr<GdiPicture> DecodePicture(std::span<const std::byte> bytes);
