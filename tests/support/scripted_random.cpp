#include "support/scripted_random.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace onze {

ScriptedRandom::~ScriptedRandom() {
    EXPECT_TRUE(script_.empty()) << script_.size() << " scripted draws left over";
}

int ScriptedRandom::Next(int bound) {
    const auto text = [](int of) { return of == 0 ? "reseeding" : "a draw of " + std::to_string(of); };
    if (script_.empty()) throw std::logic_error(text(bound) + " that no script has");
    const ScriptedDraw draw = script_.front();
    script_.pop_front();
    if (draw.bound != bound) throw std::logic_error(text(bound) + " instead of " + text(draw.bound));
    if (draw.value < 0 || draw.value >= std::max(bound, 1))
        throw std::logic_error("no value of " + text(bound));
    return draw.value;
}

}  // namespace onze
