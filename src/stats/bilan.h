#pragma once

#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/label.h"
#include "stats/shared_state.h"

namespace onze {

// The usage report. Its background shows the number of each row's table.
class Bilan {
  public:
    Bilan(Stage& stage, SharedState& shared, Form& depart);

    // Fills every value from the counters.
    void Prepare();

    Form form;
    Label Label1, Label2, Label3, Label4, Label5, Label6;
    ControlArray<Label> consult, exos, juste, faux;  // member i belongs to the table i + 2
    Label Label7, Label8, Label9, Label10;
    Label n_exo, n_exoj, n_exof;
    Label pour_lecons, pour_pythagore;
    Label retour;

  private:
    SharedState& shared_;
};

}  // namespace onze
