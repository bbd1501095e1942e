#pragma once

#include <vector>

#include "forms/drawing.h"
#include "forms/page_view.h"

namespace onze {

// A box of the window in one colour.
struct GroundPart {
    PixelBox box;
    Color color;
};

// What lies in a part of the window beside the page, where its paper goes on; in the order of painting.
std::vector<GroundPart> GroundIn(const PageView& view, const PixelBox& part);

}  // namespace onze
