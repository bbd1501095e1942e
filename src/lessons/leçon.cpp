#include "lessons/leçon.h"

Leçon::Leçon(Stage& stage, SharedState& shared, Form& depart)
    : form(stage),
      l9(form, {550_px, 351_px, 30_px, 33_px}, "", {.color = kBlack, .align = Align::kRight}),
      retour(form, {552_px, 460_px, 76_px, 17_px}, "RETOUR", kButton) {
    retour.on_click = [this, &shared, &depart] { ReturnToStart(shared.sounds, depart, form); };
}
