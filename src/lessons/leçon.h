#pragma once

#include "forms/form.h"
#include "forms/look.h"
#include "stats/shared_state.h"

// The reminders about multiplication.
class Leçon {
  public:
    Leçon(Stage& stage, SharedState& shared, Form& depart);

    Form form;
    Label l9;
    Label retour;
};
