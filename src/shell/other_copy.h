#pragma once

#include <string_view>

namespace onze {

// What a start finds of another copy of the program on the same data folder. Two would overwrite each other's
// counters, so the second one ends: with success where the first one has shown itself.
enum class OtherCopy { kNone, kShown, kOfAnotherUser, kSilent };

// The text to report before the end; French, empty for none.
constexpr std::string_view ReportOf(OtherCopy other) {
    switch (other) {
        case OtherCopy::kOfAnotherUser:
            return "Onze Tables est déjà ouvert par une autre personne sur cet ordinateur.";
        case OtherCopy::kSilent:
            return "Onze Tables est déjà ouvert, mais ne répond pas.";
        default:
            return "";
    }
}

}  // namespace onze
