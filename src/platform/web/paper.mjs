// The page shown, on a sheet of paper that the browser prints.

import { program } from "./program.mjs";
import { drawOn } from "./canvas.mjs";
import { allIsLoaded } from "./files.mjs";
import { allIsWhole, forgetWhole } from "./pictures.mjs";

// A4 on its side, without its margins; the page comes to lie there about as large as its larger picture is.
const kWidth = 2268;
const kHeight = 1500;

const sheet = document.getElementById("feuille");

function paint() {
    if (!program) return;
    sheet.width = kWidth;
    sheet.height = kHeight;
    drawOn(sheet, () => program.paintOnPaper(kWidth, kHeight));
}

function forget() {
    sheet.width = sheet.height = 0;
    forgetWhole();
}

// The first time tells which pictures are wanted.
export async function printPage() {
    paint();
    await allIsLoaded();
    await allIsWhole();
    window.print();
}

// Whoever has the browser print gets the same.
export function followPrinting() {
    window.addEventListener("beforeprint", paint);
    window.addEventListener("afterprint", forget);
}
