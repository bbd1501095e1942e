#include "support/counter.h"

#include <gtest/gtest.h>

#include "support/run_time_error.h"

namespace onze {

namespace {

TEST(Counter, TaggedNumbersWidenAndEmptyCountsAsZero) {
    TaggedNumber number = TaggedNumber::Empty();
    EXPECT_EQ(number.value(), 0);
    number.Raise("x");
    EXPECT_EQ(number, TaggedNumber::Integer(1));

    number = TaggedNumber::Integer(32766);
    number.Raise("x");
    EXPECT_EQ(number, TaggedNumber::Integer(32767));
    number.Raise("x");
    EXPECT_EQ(number, TaggedNumber::Long(32768));

    number = TaggedNumber::Long(-5);
    number.Raise("x");
    EXPECT_EQ(number, TaggedNumber::Long(-4));

    number = TaggedNumber::Long(2147483647);
    EXPECT_THROW(number.Raise("x"), RunTimeError);
}

}  // namespace

}  // namespace onze
