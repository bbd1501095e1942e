// Starts the program in a page, and does for it what browser.h lists. Beside that, the page offers:
//   #page         the canvas
//   #message      a sentence of trouble, hidden while there is none
//   #adieu        the farewell, with the button #recommencer
//   localStorage  "onze-tables/18": the counters file in base64
//   window.onzeTables.view()  where the page lies; see canvas.mjs

import { endProgram, makeProgram, program, textAt, write, writeText } from "./program.mjs";
import { decodeAhead, findPicture, followPictures, pictureOf, scaleAhead } from "./pictures.mjs";
import { bytesOf, fileNow, load } from "./files.mjs";
import { canvas, drawing, followSize, page, placePage, repaint, repaintAll, view } from "./canvas.mjs";
import { listenForTouch, prepareSound, sounds } from "./sounds.mjs";
import { followReader, reading } from "./reading.mjs";
import { followPrinting, printPage } from "./paper.mjs";
import { listen } from "./input.mjs";
import { canStore, counters, holdCounters, isFirst, isUnstored, keepBytes, readStored } from "./counters.mjs";
import { longDate, timeOfDay } from "./calendar.mjs";
import { hideFarewell, sayFarewell, showMargin, tell, untell } from "./margin.mjs";

const kFirstPage = "15";
const kAtStart = [kFirstPage, "18", "anim", "11", "12", "13", "14", "16"];
const kLarger = ["15.3x", "11.3x", "13.3x", "16.3x", "14.3x", "12.3x", "anim.3x"];
const kWorthLarger = 1.2;  // as forms/drawing.h has it
const kFirstSounds = ["5", "3", "1", "2", "4", "6", "7", "8", "9", "10"];

const kTooOld = "Ce navigateur est trop ancien pour Onze Tables. Mettez-le à jour, ou prenez-en un autre.";
const kNotLoaded = "Onze Tables n'a pas pu être chargé. Vérifiez la connexion, puis rechargez la page.";
const kSaveButton = "«\u00a0Enregistrer mes compteurs\u00a0»";
const kNothingKept =
    "Ce navigateur ne garde rien : ce qui est compté ici sera perdu quand la page se fermera. " +
    `${kSaveButton} en fait un fichier.`;
const kSecondTab =
    "Onze Tables est déjà ouvert dans un autre onglet : ce qui est compté dans celui-ci ne sera pas gardé.";
const kReplaced = "Les compteurs d'ici seront remplacés par ceux du fichier. Continuer ?";
const kNotStored = `Les compteurs n'ont pas pu être gardés. ${kSaveButton} en fait un fichier.`;

const kIsSite = !document.getElementById("onze-tables.wasm");  // and not one file

let failed = false;
let timer = 0;
let dueAt = -1;  // the page's time at which the program wants to be called

function wakeIn(milliseconds) {
    clearTimeout(timer);
    dueAt = milliseconds < 0 ? -1 : performance.now() + milliseconds;
    if (dueAt >= 0 && !document.hidden) timer = setTimeout(() => program?.time(), milliseconds);
}

function end() {
    wakeIn(-1);
    endProgram();
    untell();
    if (isUnstored()) tell(kNotStored);
    sayFarewell("À bientôt !", isUnstored() ? "" : "Vos compteurs sont gardés.");
}

function fail(text) {
    failed = true;
    wakeIn(-1);
    endProgram();
    tell(text);
    sayFarewell("Onze Tables s'est arrêté.", "");
}

const browser = {
    fileSize: (at, size) => fileNow(textAt(at, size))?.length ?? -1,
    readFile: (at, size, into) => write(into, fileNow(textAt(at, size))),
    ...counters,
    findPicture: (at, size) => (fileNow(textAt(at, size)) ? findPicture(textAt(at, size)) : -1),
    pictureWidth: (number) => pictureOf(number).width,
    pictureHeight: (number) => pictureOf(number).height,
    ...drawing,
    startSound: (at, size) => sounds.start(textAt(at, size)),
    stopSound: sounds.stop,
    longDate: (at, room) => writeText(at, room, longDate()),
    timeOfDay: (at, room) => writeText(at, room, timeOfDay()),
    screenWidth: () => Math.round(screen.width * devicePixelRatio),
    screenHeight: () => Math.round(screen.height * devicePixelRatio),
    placePage,
    repaint,
    wakeIn,
    showHand: (hand) => void (canvas.style.cursor = hand ? "pointer" : ""),
    printPage: () => void printPage(),
    end,
    fail: (at, size) => fail(textAt(at, size)),
    ...reading,
};

let compiled = null;

async function run() {
    readStored();
    await makeProgram(compiled, browser, fail);
    program.start();
    program?.resize(canvas.width, canvas.height);
}

async function restart() {
    if (failed) return location.reload();
    untell();
    await run();
    if (!failed) hideFarewell();
    repaintAll();
}

async function takeUp(bytes) {
    const some = program?.hasCounted() || counters.keptSize() >= 0;
    if (some && !confirm(kReplaced)) return;
    endProgram();
    keepBytes(bytes);
    await restart();
    if (isUnstored()) tell(kNotStored);
}

// Without it the page is written in a face of the system's.
async function loadFont(name, weight) {
    const bytes = await bytesOf(`fonts/${name}.woff2`);
    if (bytes) document.fonts.add(await new FontFace("Onze Tables", bytes, { weight }).load());
}

const loadFonts = () => Promise.allSettled([loadFont("regular", "normal"), loadFont("bold", "bold")]);

async function loadProgram() {
    const bytes = await bytesOf("onze-tables.wasm");
    if (bytes) compiled = await WebAssembly.compile(bytes);
}

// What is not needed for the first page: sounds, larger pictures where pages are shown larger, and all that is needed
// without a network.
async function loadTheRest() {
    await Promise.all([...kAtStart.map(decodeAhead), ...kFirstSounds.map(load)]);
    prepareSound();
    for (const name of page.width > 640 * kWorthLarger ? kLarger : []) {
        await load(name);
        scaleAhead(name, page.width, page.height);
    }
    if (kIsSite) await navigator.serviceWorker?.register("service_worker.js");
}

function tellOfStorage() {
    if (failed) return;
    if (!canStore()) return tell(kNothingKept);
    navigator.locks?.query().then(({ held }) => {
        if (!isFirst() && held.some((lock) => lock.name === "onze-tables")) tell(kSecondTab);
    });
}

function afterFirstPage() {
    showMargin(takeUp, restart);
    tellOfStorage();
    loadTheRest().catch(() => {});
}

function followVisibility() {
    document.addEventListener("visibilitychange", () => {
        if (dueAt >= 0) wakeIn(Math.max(0, dueAt - performance.now()));
    });
}

async function main() {
    holdCounters((unchanged) => unchanged && untell(kSecondTab));
    followSize();
    followPictures(repaintAll, () => program?.checkPictures());
    const loadFirstPage = load(kFirstPage).then(() => decodeAhead(kFirstPage));
    try {
        await Promise.all([loadProgram(), loadFonts(), ...kAtStart.map(load), loadFirstPage]);
    } catch {
        return tell(kTooOld);
    }
    if (!compiled) return tell(kNotLoaded);
    listen();
    listenForTouch();
    followReader();
    followVisibility();
    followPrinting();
    await run();
    requestAnimationFrame(() => setTimeout(afterFirstPage));
}

window.onzeTables = { view };
main().catch((error) => fail(`Erreur inattendue : ${error.message}`));
