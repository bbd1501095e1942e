#include "forms/ground.h"

#include <gtest/gtest.h>

namespace onze {

namespace {

// The page lies from 80 to 720; beside it its rulings go on, every 24 pixels.
TEST(Ground, IsThePaperOfThePageWithItsRulings) {
    const PageView view(800, 480);
    const std::vector<GroundPart> ground = GroundIn(view, {0, 0, 80, 480});
    EXPECT_EQ(ground.at(0).box, (PixelBox{0, 0, 80, 480}));
    std::vector<int> across, down;
    for (const auto& [box, color] : ground) {
        if (box.height == 1) across.push_back(box.top);
        if (box.width == 1) down.push_back(box.left);
        EXPECT_EQ(color == ground.at(0).color, box.width == 80 && box.height == 480);
    }
    EXPECT_EQ(across.size(), 20U);
    EXPECT_EQ(across.at(1) - across.at(0), 24);
    EXPECT_EQ(down, (std::vector<int>{8, 32, 56}));
    EXPECT_EQ(GroundIn(view, {720, 0, 80, 480}).size(), 1U + 20 + 3) << "beyond the page";
    EXPECT_EQ(GroundIn(view, {10, 1, 20, 22}).size(), 1U) << "between the rulings";
}

}  // namespace

}  // namespace onze
