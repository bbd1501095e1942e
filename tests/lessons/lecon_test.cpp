#include "lessons/lecon.h"

#include "support/pupil.h"

namespace onze {

namespace {

TEST(Leçon, EveryReminderIsReadableInItsBoxAndKeepsClearOfItsNeighbours) {
    Pupil pupil;
    Leçon& page = pupil.screens.leçon;
    for (const Label* text : {&page.l1, &page.l2, &page.l3, &page.l4, &page.l5, &page.l6, &page.l7, &page.l8,
                              &page.l9, &page.l10}) {
        SCOPED_TRACE(text->caption());
        EXPECT_LE(text->Layout().Height(), text->box().height);
        EXPECT_LE(text->Layout().Width(), text->box().width);
        EXPECT_GE(text->Layout().font.height, 6.5_pt);
    }
    EXPECT_LE(page.l1.box().left + page.l1.Layout().Width(), page.l3.box().left);
    // The worked example stands beside the end of l10, in its two lines.
    EXPECT_LE(page.l10.box().left + page.l10.Layout().lines.back().width, page.l9.box().left);
    EXPECT_EQ(page.l9.Layout().lines.size(), 2U);
}

}  // namespace

}  // namespace onze
