#pragma once

#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/label.h"
#include "pythagoras/blinker.h"
#include "stats/shared_state.h"

namespace onze {

// The Pythagoras table: a number of the first column and one of the first row, in either order, make a
// multiplication, and two bars blink that cross on its product.
class Pythagore {
  public:
    Pythagore(Stage& stage, SharedState& shared, Form& depart);

    // The example in words that each opening begins with; the choice of numbers goes on as it was left.
    void Prepare();

    Form form;
    Label cachehaut, cachelong;           // the bars, under the numbers
    ControlArray<Label> colonne, rangee;  // member i shows and stands for i
    Image produits;                       // of the picture, for who does not see it
    Label operation;
    Label pita1, pita2, Label1, pita3, pita4, Label3, Label2;
    Label retour;

  private:
    void colonne_Click(int i);
    void rangee_Click(int j);
    void retour_Click();

    void PlayClick();
    // Counts the pair that a second number makes.
    void CountPair();
    // Takes a number into the pair and closes the side that it came from.
    void Choose(int number, ControlArray<Label>& side);
    void EnableNumbers();
    // A chosen number is marked until its pair is done with.
    void UnmarkNumbers();
    void ShowBars(bool visible);

    SharedState& shared_;
    Form& depart_;
    Blinker blinker_;
    int PythagoreStep = 0;  // 1 once the first number of a pair is chosen
    int PythagoreFirst = 0;
    int PythagoreSecond = 0;
};

}  // namespace onze
