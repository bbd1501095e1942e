#pragma once

#include "exercises/exercices.h"
#include "learn/apprendre.h"
#include "lessons/lecon.h"
#include "pythagoras/pythagore.h"
#include "services/screen_pictures.h"
#include "shell/depart.h"
#include "shell/divers.h"
#include "shell/host.h"
#include "stats/bilan.h"

namespace onze {

// Every screen of the program, made at start-up and kept to the end.
struct Screens {
    Screens(Stage& stage, const Host& host, const ScreenPictures& pictures, SharedState& shared)
        : divers{Form(stage), {host.pictures, pictures.Find(kStripName)}},
          depart(stage, host.calendar, shared, *this),
          apprendre(stage, shared, divers.anim, depart.form),
          leçon(stage, shared, depart.form),
          pythagore(stage, shared, depart.form),
          exercices(stage, shared, depart.form),
          bilan(stage, shared, depart.form) {}

    Divers divers;
    Depart depart;
    Apprendre apprendre;
    Leçon leçon;
    Pythagore pythagore;
    Exercices exercices;
    Bilan bilan;
};

}  // namespace onze
