#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include "platform/windows/gdi_bitmap.h"
#include "services/pictures.h"

namespace onze {

// A picture in memory, its colours multiplied by its alpha.
class GdiPicture final : public Picture {
  public:
    GdiPicture(int width, int height) : bitmap_(width, height) {}

    int WidthInPixels() const override { return bitmap_.width(); }
    int HeightInPixels() const override { return bitmap_.height(); }
    // At this place, brought to this size.
    void DrawOn(HDC dc, int x, int y, int width, int height) const;
    // The part of it that lies inside it whole.
    std::shared_ptr<const GdiPicture> Clip(int x, int y, int width, int height) const;

    // Whatever the system's loader can make of a file; null for nothing.
    static std::shared_ptr<GdiPicture> Decode(std::span<const std::byte> bytes);

    friend bool operator==(const GdiPicture& a, const GdiPicture& b);

  private:
    std::span<const std::uint32_t> Pixels() const;
    void NoteOpacity();

    const GdiBitmap& AtSize(int width, int height) const;

    GdiBitmap bitmap_;
    bool opaque_ = false;
    mutable std::unique_ptr<GdiBitmap> scaled_;  // the size in which it was last drawn, if not its own
};

// GDI+ must be started.
class WindowsPictures final : public Pictures {
  public:
    PicturePtr Decode(std::string_view name, std::span<const std::byte> file) override;
    PicturePtr Clip(const Picture& picture, int x, int y, int width, int height) override;
};

}  // namespace onze
