#pragma once

#include "forms/form.h"
#include "forms/look.h"
#include "stats/shared_state.h"

// The usage report.
class Bilan {
  public:
    Bilan(Stage& stage, SharedState& shared, Form& depart);

    // Fills every value from the counters.
    void Fill();

    Form form;
    Label retour;
};
