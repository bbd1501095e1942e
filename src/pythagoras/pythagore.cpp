#include "pythagoras/pythagore.h"

Pythagore::Pythagore(Stage& stage, SharedState& shared, Form& depart)
    : form(stage),
      operation(form, {184_px, 449_px, 238_px, 29_px}, "", {.font = {13.5_pt, true}, .color = {255, 0, 0}}),
      retour(form, {552_px, 460_px, 76_px, 17_px}, "RETOUR", kButton) {
    retour.on_click = [this, &shared, &depart] { ReturnToStart(shared.sounds, depart, form); };
}
