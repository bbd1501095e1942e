#pragma once

#include <string>

#include "services/sounds.h"
#include "stats/counters.h"
#include "support/random.h"

namespace onze {

// What the screens share.
struct SharedState {
    Sounds& sounds;
    Random& random;
    Counters& counters;
    int CurrentTable = kFirstTable;  // 2 to 12, chosen on the start screen
    int MembershipAnswer = 0;
    std::string NoteName{};  // scratch text of the report and of the exercises screen
};

}  // namespace onze
