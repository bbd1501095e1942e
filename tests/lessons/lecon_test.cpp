#include "lessons/lecon.h"

#include <regex>

#include "support/pupil.h"

namespace {

TEST(Leçon, EveryReminderIsReadableInItsBoxAndTrue) {
    Pupil pupil;
    Leçon& page = pupil.screens.leçon;
    int examples = 0;
    for (const Label* text : {&page.l1, &page.l2, &page.l3, &page.l4, &page.l5, &page.l6, &page.l7, &page.l8,
                              &page.l9, &page.l10}) {
        const std::string& caption = text->caption();
        SCOPED_TRACE(caption);
        EXPECT_LE(text->Layout().Height(), text->box().height);
        EXPECT_LE(text->Layout().Width(), text->box().width);
        EXPECT_GE(text->Layout().font.height, 6.5_pt);
        const std::regex product("(\\d+) X (\\d+) = (\\d+)(?! X)");
        for (std::sregex_iterator found(caption.begin(), caption.end(), product), end; found != end;
             ++found) {
            EXPECT_EQ(std::stoi(found->str(1)) * std::stoi(found->str(2)), std::stoi(found->str(3)));
            ++examples;
        }
    }
    EXPECT_EQ(examples, 5);
    EXPECT_NE(page.l8.caption().find("entre le 2 et le 6  --> 286.  Autre exemple"), std::string::npos);
}

TEST(Leçon, TextsKeepClearOfTheirNeighbours) {
    Pupil pupil;
    Leçon& page = pupil.screens.leçon;
    EXPECT_LE(page.l1.box().left + page.l1.Layout().Width(), page.l3.box().left);
    // The worked example stands beside the end of l10, its digits one under the other.
    EXPECT_LE(page.l10.box().left + page.l10.Layout().lines.back().width, page.l9.box().left);
    EXPECT_EQ(page.l9.Layout().lines.size(), 2U);
    EXPECT_EQ(page.l9.caption(), "342\rX  57");
    EXPECT_EQ(page.l9.style().align, Align::kRight);
}

}  // namespace
