#include "forms/ground.h"

#include <algorithm>

namespace onze {

namespace {

constexpr Color kPaper{255, 253, 246};
constexpr Color kRule{222, 237, 243};
constexpr int kRuling = 24_px;

PixelBox Shared(const PixelBox& a, const PixelBox& b) {
    const int left = std::max(a.left, b.left);
    const int top = std::max(a.top, b.top);
    return {left, top, std::min(a.right(), b.right()) - left, std::min(a.bottom(), b.bottom()) - top};
}

}  // namespace

std::vector<GroundPart> GroundIn(const PageView& view, const PixelBox& part) {
    std::vector<GroundPart> ground{{part, kPaper}};
    const Rect on_page = view.Around(part);
    const int line = view.LengthToPixels(1_px);
    const auto rule = [&](const PixelBox& box) {
        const PixelBox shown = Shared(part, box);
        if (!shown.empty()) ground.push_back({shown, kRule});
    };
    for (int y = on_page.top / kRuling * kRuling; y < on_page.bottom(); y += kRuling)
        rule({part.left, view.ToPixels(Point{0, y}).y, part.width, line});
    for (int x = on_page.left / kRuling * kRuling; x < on_page.right(); x += kRuling)
        rule({view.ToPixels(Point{x, 0}).x, part.top, line, part.height});
    return ground;
}

}  // namespace onze
