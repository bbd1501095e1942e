// What stands beside the page: its few buttons, the sentences of trouble, the farewell.

import { program } from "./program.mjs";
import { printPage } from "./paper.mjs";
import { isUnstored, readCounters, saveAsFile } from "./counters.mjs";

const element = (id) => document.getElementById(id);
const message = element("message");

// A sentence of trouble.
export function tell(text) {
    message.textContent = text;
    element("avis").hidden = message.hidden = false;
}

// Takes a sentence away, where it is this one that stands there, or whichever.
export function untell(text = message.textContent) {
    if (message.textContent === text) element("avis").hidden = message.hidden = true;
}

const root = document.documentElement;
const enter = root.requestFullscreen ?? root.webkitRequestFullscreen;
const leave = document.exitFullscreen ?? document.webkitExitFullscreen;
const isFull = () => Boolean(document.fullscreenElement ?? document.webkitFullscreenElement);

async function switchFullScreen() {
    await (isFull() ? leave.call(document) : enter.call(root));
    if (isFull()) await screen.orientation?.lock?.("landscape");
}

function showFullScreen() {
    element("plein-ecran").textContent = isFull() ? "Quitter le plein écran" : "Plein écran";
}

function offerFullScreen() {
    const button = element("plein-ecran");
    button.hidden = !(document.fullscreenEnabled ?? document.webkitFullscreenEnabled);
    button.addEventListener("click", () => switchFullScreen().catch(() => {}));
    for (const kind of ["fullscreenchange", "webkitfullscreenchange"]) document.addEventListener(kind, showFullScreen);
}

export function leaveFullScreen() {
    if (isFull()) leave.call(document)?.catch?.(() => {});
}

function offerCounters(takeUp) {
    const chooser = element("fichier");
    element("enregistrer").addEventListener("click", saveAsFile);
    element("reprendre").addEventListener("click", () => chooser.click());
    chooser.addEventListener("change", async () => {
        const bytes = await readCounters(chooser.files[0]).catch(() => null);
        chooser.value = "";
        if (bytes) return takeUp(bytes);
        tell("Ce fichier n'est pas un fichier de compteurs. Rien n'a changé.");
    });
}

export function showMargin(takeUp, restart) {
    offerFullScreen();
    element("imprimer").addEventListener("click", () => printPage());
    offerCounters(takeUp);
    element("recommencer").addEventListener("click", restart);
    element("fermer").addEventListener("click", () => untell());
    element("marge").hidden = false;
    window.addEventListener("beforeunload", (event) => {
        if (!isUnstored() && !program?.hasCounted()) return;
        event.preventDefault();
        event.returnValue = "";
    });
}

export function sayFarewell(title, text) {
    leaveFullScreen();
    element("adieu-titre").textContent = title;
    element("adieu-texte").textContent = text;
    element("lecture").hidden = true;
    element("adieu").hidden = false;
    element("recommencer").focus();
}

export function hideFarewell() {
    element("adieu").hidden = true;
    element("lecture").hidden = false;
}
