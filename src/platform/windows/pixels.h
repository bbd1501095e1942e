#pragma once

#include <windows.h>

#include "forms/geometry.h"

// The nearest pixel edge.
constexpr int ToPixels(int twips) {
    const int shifted = twips + kTwipsPerPixel / 2;
    return shifted >= 0 ? shifted / kTwipsPerPixel : -((-shifted + kTwipsPerPixel - 1) / kTwipsPerPixel);
}

// Each edge is rounded by itself, so that boxes that touch on the page touch on the screen.
constexpr RECT ToPixels(const Rect& box) {
    return {ToPixels(box.left), ToPixels(box.top), ToPixels(box.right()), ToPixels(box.bottom())};
}

// The pixels that a box touches, and the middle of a pixel.
constexpr RECT PixelsAround(const Rect& box) {
    const RECT nearest = ToPixels(box);
    return {nearest.left - 1, nearest.top - 1, nearest.right + 1, nearest.bottom + 1};
}

constexpr Rect ToTwips(const RECT& box) {
    return {box.left * kTwipsPerPixel, box.top * kTwipsPerPixel, (box.right - box.left) * kTwipsPerPixel,
            (box.bottom - box.top) * kTwipsPerPixel};
}

constexpr Point MiddleOfPixel(int x, int y) {
    return {x * kTwipsPerPixel + kTwipsPerPixel / 2, y * kTwipsPerPixel + kTwipsPerPixel / 2};
}
