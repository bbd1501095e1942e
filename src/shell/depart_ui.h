#pragma once

#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/timer.h"

// The start screen's controls.
struct DepartUi {
    explicit DepartUi(Stage& stage);

    Form form;
    ControlArray<Image> chiffre;  // member i chooses the table i + 2
    Image pytha, apprendre_leçon, exos, Image_bilan;
    Label label_table, Label1, Label2, Label3, bilan_utilisation, heure, dates, fin;
    Timer timer;
};
