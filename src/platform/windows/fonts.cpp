#include "platform/windows/fonts.h"

#include <cmath>
#include <cwchar>
#include <numeric>

#include "platform/windows/utf8.h"

namespace onze {

namespace {

constexpr UINT kBitmapAlphabet = 1252;
constexpr int kLargestBitmap = 16;  // in pixels; larger letters look better drawn smooth

bool FitsBitmapAlphabet(std::wstring_view text) {
    BOOL missing = FALSE;
    WideCharToMultiByte(kBitmapAlphabet, WC_NO_BEST_FIT_CHARS, text.data(), static_cast<int>(text.size()),
                        nullptr, 0, nullptr, &missing);
    return !missing;
}

int HeightInPixels(const Font& font) {
    return (font.height + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

// Selects a font into a device context for a while.
class FontSelection {
  public:
    FontSelection(HDC dc, HFONT font) : dc_(dc), former_(SelectObject(dc, font)) {}
    ~FontSelection() { SelectObject(dc_, former_); }
    FontSelection(const FontSelection&) = delete;
    FontSelection& operator=(const FontSelection&) = delete;

  private:
    HDC dc_;
    HGDIOBJ former_;
};

}  // namespace

Fonts::~Fonts() {
    for (const auto& [key, font] : fonts_) DeleteObject(font);
}

HFONT Fonts::FontFor(std::wstring_view text, const Font& font, double enlargement) {
    const auto pixels = static_cast<int>(std::lround(HeightInPixels(font) * enlargement));
    const bool bitmap_serves = enlargement == 1 && pixels <= kLargestBitmap && FitsBitmapAlphabet(text);
    const HFONT bitmap = bitmap_serves ? Get({Face::kBitmap, pixels, font.bold}) : nullptr;
    return bitmap ? bitmap : Get({Face::kScalable, pixels, font.bold});
}

Size Fonts::MeasureText(std::string_view line, const Font& font) {
    const std::wstring text = ToWide(line);
    const FontSelection selection(dc_, FontFor(text, font));
    SIZE size{};
    GetTextExtentPoint32W(dc_, text.data(), static_cast<int>(text.size()), &size);
    return {static_cast<int>(size.cx) * kTwipsPerPixel,
            static_cast<int>(Metrics().tmHeight) * kTwipsPerPixel};
}

std::vector<int> Fonts::Advances(std::wstring_view line, const Font& font, double enlargement) {
    std::vector<int> ends = Ends(line, FontFor(line, font, enlargement));
    if (ends.empty()) return ends;
    // Where the larger letters are not as wide as the page has them, each gives way by as much.
    const double width = Ends(line, FontFor(line, font)).back() * enlargement;
    const double give = ends.back() > 0 ? width / ends.back() : 1;
    for (int& end : ends) end = static_cast<int>(std::lround(end * give));
    std::adjacent_difference(ends.begin(), ends.end(), ends.begin());
    return ends;
}

std::vector<int> Fonts::Ends(std::wstring_view line, HFONT font) const {
    const FontSelection selection(dc_, font);
    std::vector<int> ends(line.size());
    SIZE size{};
    GetTextExtentExPointW(dc_, line.data(), static_cast<int>(line.size()), 0, nullptr, ends.data(), &size);
    return ends;
}

HFONT Fonts::Get(const Key& key) {
    const auto [place, is_new] = fonts_.try_emplace(key, nullptr);
    if (is_new) place->second = Make(key);
    return place->second;
}

HFONT Fonts::Make(const Key& key) {
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
int Fonts::EmOf(HFONT font) const {
    const FontSelection selection(dc_, font);
    const TEXTMETRICW metrics = Metrics();
    return static_cast<int>(metrics.tmHeight - metrics.tmInternalLeading);
}

TEXTMETRICW Fonts::Metrics() const {
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc_, &metrics);
    return metrics;
}

}  // namespace onze
