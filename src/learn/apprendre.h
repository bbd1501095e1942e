#pragma once

#include "forms/control_array.h"
#include "forms/form.h"
#include "learn/factoring.h"
#include "learn/letter_code.h"
#include "learn/missing_sign.h"
#include "learn/multiple.h"
#include "services/picture_clip.h"

namespace onze {

// The learning screen: one table as pictures of digits, and four exercises on it.
class Apprendre {
    TableTally tally_;

  public:
    Apprendre(Stage& stage, SharedState& shared, PictureClip& anim, Form& depart);

    // Shows a table, 2 to 12: its number and its products, with pictures cut from the strip, and the title.
    void Prepare(int table);

    Form form;
    Label titre;
    ControlArray<Image> multiplicateur;  // the table's number: members 1 to 11 small, 12 large
    ControlArray<Image> resultat;        // the products: three cells for each of the twelve rows
    Line Line1, Line2, Line3, Line4, Line5, Line6, Line7;
    FactoringPanel factoring;
    MultiplePanel multiple;
    LetterCodePanel letter_code;
    MissingSignPanel missing_sign;
    Label retour;

  private:
    void Form_Activate();
    void retour_Click();

    Sounds& sounds_;
    PictureClip& anim_;
    Form& depart_;
};

}  // namespace onze
