#pragma once

#include "forms/form.h"
#include "forms/look.h"
#include "stats/shared_state.h"

// The exercises screen.
class Exercices {
  public:
    Exercices(Stage& stage, SharedState& shared, Form& depart);

    Form form;
    Label retour;
};
