// The counters that the browser keeps: the bytes of the file "18".

import { bytesAt, countersNow, isCountersFile, write } from "./program.mjs";

const kKey = "onze-tables/18";
const kName = "18";
const kMostFileBytes = 4096;

let stored = null;    // as it was found, or written last; base64
let unstored = null;  // bytes that the browser did not take: kept as long as the page is open
let first = true;     // whether no other tab has the counters

const toText = (bytes) => btoa(String.fromCharCode(...bytes));
const toBytes = (text) => Uint8Array.from(atob(text), (letter) => letter.charCodeAt(0));

function look() {
    try {
        const text = localStorage.getItem(kKey);
        if (text !== null) toBytes(text);
        return text;
    } catch {
        return null;
    }
}

function store(text) {
    try {
        if (!first || look() !== stored) return false;
        localStorage.setItem(kKey, text);
        stored = text;
        return true;
    } catch {
        return false;
    }
}

const kept = () => unstored ?? (stored === null ? null : toBytes(stored));

export const counters = {
    keptSize: () => kept()?.length ?? -1,
    readKept: (at) => write(at, kept()),
    // Never fails: what cannot be stored is kept here.
    keep(at, size) {
        keepBytes(bytesAt(at, size).slice());
        return 1;
    },
};

export function keepBytes(bytes) {
    unstored = store(toText(bytes)) ? null : bytes;
}

export const isUnstored = () => unstored !== null;

export function readStored() {
    if (unstored === null) stored = look();
}

// Whether the browser keeps anything at all.
export function canStore() {
    try {
        localStorage.setItem(`${kKey}?`, "");
        localStorage.removeItem(`${kKey}?`);
        return true;
    } catch {
        return false;
    }
}

// Of all tabs one has the counters, until it is closed. Tells when this one has them, and whether they are those that
// it began with.
export function holdCounters(tell) {
    if (!navigator.locks) return;
    const hold = () => {
        first = true;
        tell(look() === stored);
    };
    const holdForEver = () => {
        hold();
        return new Promise(() => {});
    };
    first = false;
    navigator.locks.request("onze-tables", holdForEver).catch(hold);
}

export const isFirst = () => first;

export function saveAsFile() {
    const bytes = countersNow();
    const link = document.createElement("a");
    link.href = URL.createObjectURL(new Blob([bytes], { type: "application/octet-stream" }));
    link.download = kName;
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 60000);
}

// The bytes of a file that someone chose, or null where it is no counters file.
export async function readCounters(file) {
    if (file.size > kMostFileBytes) return null;
    const bytes = new Uint8Array(await file.arrayBuffer());
    return isCountersFile(bytes) ? bytes : null;
}
