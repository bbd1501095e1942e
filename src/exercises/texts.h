#pragma once

#include <string>

#include "services/texts.h"
#include "support/number_text.h"

namespace onze {

// Texts that several of the exercises have in common.

inline const std::string kEnterAnswerOnTwoLines =
    "Entrez votre réponse grâce aux flèches puis\rcliquez sur cette réponse pour la correction.";
inline const std::string kRightGoOn =
    "C'est juste ! Entrez votre réponse grâce aux flèches\r"
    "puis cliquez sur cette réponse pour la correction.";
inline const std::string kSolved = "Bravo ! Vous avez trouvé la solution !" + kContinueLine;

// A product whose first factor is asked, in an answer that stands before this text.
inline std::string TimesText(int second, int product) {
    return "X" + Str(second) + " =" + Str(product);
}

}  // namespace onze
