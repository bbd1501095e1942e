#pragma once

#include <string>

namespace onze {

// Texts that several screens have in common.

inline const std::string kUnanswered = "??";
inline const std::string kContinue = "Cliquez sur Continuer pour un autre exercice.";
inline const std::string kContinueLine = "\r" + kContinue;
inline const std::string kPlayWithTable = "Jouons avec la Table de";
inline const std::string kEnterAnswer =
    "Entrez votre réponse grâce aux flèches puis cliquez sur cette réponse pour la correction.";
inline const std::string kEnterAnswers =
    "Entrez vos réponses grâce aux flèches puis cliquez sur ces réponses pour la correction.";

}  // namespace onze
