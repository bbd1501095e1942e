#include "support/number_text.h"

#include <gtest/gtest.h>

#include "support/capital.h"

namespace onze {

namespace {

TEST(NumberText, StrPutsABlankInPlaceOfThePlusSign) {
    EXPECT_EQ(Str(7), " 7");
    EXPECT_EQ(Str(0), " 0");
    EXPECT_EQ(Str(-3), "-3");
    EXPECT_EQ(Digits(19008), "19008");
}

TEST(NumberText, ValReadsTheNumberAtTheStart) {
    const std::pair<const char*, int> cases[] = {
        {" 24 =", 24}, {"56", 56}, {"  7 X", 7}, {" 1 2 X", 12}, {"X 12", 0}, {"??", 0}, {"", 0}, {"-5", -5},
    };
    for (const auto& [text, number] : cases) EXPECT_EQ(Val(text), number) << text;
}

TEST(NumberText, WithCapitalRaisesTheFirstLetterOnly) {
    const std::pair<const char*, const char*> cases[] = {
        {"samedi 10 novembre 2001", "Samedi 10 novembre 2001"},
        {"zaterdag", "Zaterdag"},
        {"École", "École"},
        {"été", "Été"},
        {"žena", "Žena"},
        {"środa", "Środa"},
        {"űr", "Űr"},
        {"÷", "÷"},
        {"воскресенье", "Воскресенье"},
        {"ђ", "Ђ"},
        {"σάββατο", "Σάββατο"},
        {"10/11/2001", "10/11/2001"},
        {"土曜日", "土曜日"},
        {"", ""},
    };
    for (const auto& [text, capital] : cases) EXPECT_EQ(WithCapital(text), capital);
    EXPECT_EQ(WithCapital("\xC3"), "\xC3");
}

}  // namespace

}  // namespace onze
