// At most one sound is heard. What does not work is silence.

import { fileNow, load } from "./files.mjs";

const Context = window.AudioContext ?? window.webkitAudioContext;
let audio = null;
let source = null;
let wanted = 0;  // counts what was asked for, so that only the last is heard

// Takes long in some browsers, the first time: better before a touch than after it.
export function prepareSound() {
    if (Context) audio ??= new Context();
}

// Browsers let a page be heard once it was touched.
export function listenForTouch() {
    for (const kind of ["pointerdown", "pointerup", "keydown", "click"])
        window.addEventListener(kind, prepareSound, { capture: true });
}

function stop() {
    ++wanted;
    if (source) source.onended = null;
    source?.stop();
    source = null;
}

async function play(name) {
    const mine = ++wanted;
    if (!audio) return load(name);
    await load(name);
    const bytes = fileNow(name);
    if (!bytes || mine !== wanted) return;
    const resumed = audio.resume();
    const buffer = await audio.decodeAudioData(bytes.slice().buffer);
    await resumed;
    if (mine !== wanted) return;
    source = audio.createBufferSource();
    source.buffer = buffer;
    source.connect(audio.destination);
    // A device that plays silence keeps the machine awake.
    source.onended = () => audio.suspend();
    source.start();
}

export const sounds = {
    start: (name) => void play(name).catch(() => {}),
    stop,
};
