#pragma once

#include "forms/form.h"
#include "forms/look.h"
#include "stats/shared_state.h"

// The Pythagoras table.
class Pythagore {
  public:
    Pythagore(Stage& stage, SharedState& shared, Form& depart);

    Form form;
    Label operation;
    Label retour;
};
