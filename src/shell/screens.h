#pragma once

#include "exercises/exercices.h"
#include "learn/apprendre.h"
#include "lessons/lecon.h"
#include "pythagoras/pythagore.h"
#include "shell/depart_ui.h"
#include "shell/divers.h"
#include "stats/bilan.h"

// Every screen of the program, made at start-up and kept to the end.
struct Screens {
    Screens(Stage& stage, SharedState& shared)
        : depart(stage),
          apprendre(stage, shared, depart.form),
          leçon(stage, shared, depart.form),
          pythagore(stage, shared, depart.form),
          exercices(stage, shared, depart.form),
          bilan(stage, shared, depart.form),
          divers(stage) {}

    DepartUi depart;
    Apprendre apprendre;
    Leçon leçon;
    Pythagore pythagore;
    Exercices exercices;
    Bilan bilan;
    Divers divers;
};
