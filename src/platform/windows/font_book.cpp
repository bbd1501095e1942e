#include "platform/windows/font_book.h"

#include <cwchar>
#include <numeric>

#include "platform/windows/pixels.h"

namespace {

constexpr UINT kBitmapAlphabet = 1252;
constexpr int kLargestBitmap = 16;  // in pixels; larger letters look better drawn smooth

bool FitsBitmapAlphabet(std::wstring_view text) {
    BOOL missing = FALSE;
    WideCharToMultiByte(kBitmapAlphabet, WC_NO_BEST_FIT_CHARS, text.data(), static_cast<int>(text.size()),
                        nullptr, 0, nullptr, &missing);
    return !missing;
}

// Selects a font into a device context for a while.
class Selected {
  public:
    Selected(HDC dc, HFONT font) : dc_(dc), former_(SelectObject(dc, font)) {}
    ~Selected() { SelectObject(dc_, former_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC dc_;
    HGDIOBJ former_;
};

}  // namespace

FontBook::~FontBook() {
    for (const auto& [key, font] : fonts_) DeleteObject(font);
}

HFONT FontBook::FontFor(std::wstring_view text, const Font& font) {
    const int pixels = ToPixels(font.height);
    const bool bitmap_serves = pixels <= kLargestBitmap && FitsBitmapAlphabet(text);
    const HFONT bitmap = bitmap_serves ? Get({Face::kBitmap, pixels, font.bold}) : nullptr;
    return bitmap ? bitmap : Get({Face::kScalable, pixels, font.bold});
}

SIZE FontBook::Measure(std::wstring_view line, const Font& font) {
    const Selected selected(dc_, FontFor(line, font));
    SIZE size{};
    GetTextExtentPoint32W(dc_, line.data(), static_cast<int>(line.size()), &size);
    return {size.cx, Metrics().tmHeight};
}

std::vector<int> FontBook::Advances(std::wstring_view line, const Font& font) {
    const Selected selected(dc_, FontFor(line, font));
    std::vector<int> advances(line.size());
    SIZE size{};
    GetTextExtentExPointW(dc_, line.data(), static_cast<int>(line.size()), 0, nullptr, advances.data(),
                          &size);
    std::adjacent_difference(advances.begin(), advances.end(), advances.begin());
    return advances;
}

HFONT FontBook::Get(const Key& key) {
    const auto [place, is_new] = fonts_.try_emplace(key, nullptr);
    if (is_new) place->second = Make(key);
    return place->second;
}

HFONT FontBook::Make(const Key& key) {
    const auto [face, pixels, bold] = key;
    const bool bitmap = face == Face::kBitmap;
    LOGFONTW wanted{};
    wanted.lfHeight = -pixels;
    wanted.lfWeight = bold ? FW_BOLD : FW_NORMAL;
    wanted.lfCharSet = bitmap ? ANSI_CHARSET : DEFAULT_CHARSET;
    wanted.lfQuality = bitmap ? NONANTIALIASED_QUALITY : ANTIALIASED_QUALITY;
    wanted.lfPitchAndFamily = VARIABLE_PITCH | FF_SWISS;
    std::wcscpy(wanted.lfFaceName, bitmap ? L"MS Sans Serif" : L"Microsoft Sans Serif");
    const HFONT font = CreateFontIndirectW(&wanted);
    if (!bitmap || EmOf(font) == pixels) return font;
    DeleteObject(font);
    return nullptr;
}

// The system answers a size that it has no bitmaps of with another one.
int FontBook::EmOf(HFONT font) const {
    const Selected selected(dc_, font);
    const TEXTMETRICW metrics = Metrics();
    return static_cast<int>(metrics.tmHeight - metrics.tmInternalLeading);
}

TEXTMETRICW FontBook::Metrics() const {
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc_, &metrics);
    return metrics;
}
