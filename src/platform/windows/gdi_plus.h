#pragma once

#include <gdiplus.h>
#include <windows.h>

namespace onze {

// Keeps GDI+ ready for use as long as it lives.
class GdiPlus {
  public:
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;
    ~GdiPlus() { Gdiplus::GdiplusShutdown(token_); }

  private:
    ULONG_PTR token_ = 0;
};

}  // namespace onze
