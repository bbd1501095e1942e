#include "support/scripted_random.h"

#include <gtest/gtest.h>

ScriptedRandom::~ScriptedRandom() {
    EXPECT_TRUE(done()) << script_.size() << " scripted draws left over";
}

void ScriptedRandom::Randomize() {
    EXPECT_EQ(Next().bound, 0) << "reseeded where a draw was expected";
}

int ScriptedRandom::Draw(int bound) {
    const ScriptedDraw draw = Next();
    EXPECT_EQ(draw.bound, bound);
    return draw.value;
}

ScriptedDraw ScriptedRandom::Next() {
    if (script_.empty()) {
        ADD_FAILURE() << "a draw that the script does not have";
        return {-1, 0};
    }
    const ScriptedDraw draw = script_.front();
    script_.pop_front();
    return draw;
}
