#pragma once

#include "forms/form.h"
#include "forms/label.h"
#include "stats/shared_state.h"

namespace onze {

// The reminders about multiplication.
class Leçon {
  public:
    Leçon(Stage& stage, SharedState& shared, Form& depart);

    // Writes the worked example.
    void Prepare();

    Form form;
    Line Line1, Line2, Line3, Line4, Line5;
    Label l1, l2, l3, l4, l5, l6, l7, l8;
    Label l9;  // the worked example that l10 ends with, filled at start-up
    Label l10;
    Label retour;
};

}  // namespace onze
