#pragma once

#include "exercises/factor_pair.h"
#include "exercises/factored_sum.h"
#include "exercises/membership.h"
#include "exercises/missing_factor.h"
#include "exercises/note_factor.h"
#include "exercises/product.h"
#include "forms/form.h"

namespace onze {

// The exercises screen: exercises on all tables, in any order, each in an area of its own.
class Exercices {
    PuzzleTally tally_;

  public:
    Exercices(Stage& stage, SharedState& shared, Form& depart);

    Form form;
    Line Line1, Line2, Line3, Line4, Line5, Line8;
    MembershipPanel membership;
    ProductPanel product;
    FactorPairPanel factor_pair;
    MissingFactorPanel missing_factor;
    FactoredSumPanel factored_sum;
    NoteFactorPanel note_factor;
    Label fin;

  private:
    void Form_Activate();

    Random& random_;
};

}  // namespace onze
