#pragma once

#include <algorithm>

namespace onze {

// All measures are whole twips, 15 to a pixel of the 640 x 480 page, so that measures given in pixels and
// measures given in twips are both kept exactly. Only a presenter rounds.
inline constexpr int kTwipsPerPixel = 15;

constexpr int operator""_px(unsigned long long pixels) {
    return static_cast<int>(pixels) * kTwipsPerPixel;
}

// Font heights: points, 20 twips each.
constexpr int operator""_pt(long double points) {
    return static_cast<int>(points * 20);
}

inline constexpr int kPageWidth = 640_px;
inline constexpr int kPageHeight = 480_px;

struct Point {
    int x = 0;
    int y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    int width = 0;
    int height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

// How far something passes a box on each side.
struct Margins {
    constexpr Margins() = default;
    constexpr Margins(int all) : Margins(all, all) {}
    constexpr Margins(int sides, int ends) : Margins(sides, ends, sides, ends) {}
    constexpr Margins(int l, int t, int r, int b) : left(l), top(t), right(r), bottom(b) {}

    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    constexpr int right() const { return left + width; }
    constexpr int bottom() const { return top + height; }
    constexpr bool empty() const { return width <= 0 || height <= 0; }
    constexpr Point Middle() const { return {left + width / 2, top + height / 2}; }
    constexpr bool Contains(Point p) const {
        return p.x >= left && p.x < right() && p.y >= top && p.y < bottom();
    }
    // The same box with its sides moved outwards.
    constexpr Rect Grown(const Margins& by) const {
        return {left - by.left, top - by.top, width + by.left + by.right, height + by.top + by.bottom};
    }
    // The smallest box around both; an empty box adds nothing.
    constexpr Rect United(const Rect& other) const {
        if (empty()) return other;
        if (other.empty()) return *this;
        const int x = std::min(left, other.left);
        const int y = std::min(top, other.top);
        return {x, y, std::max(right(), other.right()) - x, std::max(bottom(), other.bottom()) - y};
    }
    constexpr bool Meets(const Rect& other) const {
        return left < other.right() && other.left < right() && top < other.bottom() && other.top < bottom();
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace onze
