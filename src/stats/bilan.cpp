#include "stats/bilan.h"

Bilan::Bilan(Stage& stage, SharedState& shared, Form& depart)
    : form(stage), retour(form, {552_px, 460_px, 76_px, 17_px}, "RETOUR", kButton) {
    retour.on_click = [this, &shared, &depart] { ReturnToStart(shared.sounds, depart, form); };
}

void Bilan::Fill() {}
