// The elements that stand over the canvas for those who do not see it: one for each control that is read. Their
// focus is the program's, and the program's is theirs.

import { program, textAt } from "./program.mjs";
import { canvas } from "./canvas.mjs";

const layer = document.getElementById("lecture");
const announcements = document.getElementById("annonces");
// Of ReadControl::Kind. A header of a table is what it does: a button.
const kKinds = ["p", "h2", "img", "img", "button", "button", "button", "spinbutton"];

let elements = [];       // in the order of reading
let before = new Map();  // those there were, by their controls
let count = 0;           // of those that come
let following = false;   // the program's focus, which needs no telling

function make(kind) {
    const element = document.createElement(["p", "h2", "button"].includes(kind) ? kind : "div");
    if (kind === "img" || kind === "spinbutton") element.setAttribute("role", kind);
    if (kind === "button") element.type = "button";
    return element;
}

function name(element, kind, text) {
    if (kind === "p" || kind === "h2") {
        if (element.textContent !== text) element.textContent = text;
    } else {
        element.setAttribute("aria-label", text);
    }
}

function offer(element, kind, stop) {
    const used = kind === "button" || kind === "spinbutton";
    if (!used) return;
    element.tabIndex = stop ? 0 : -1;
    element.setAttribute("aria-disabled", String(!stop));
}

// Where it lies on the canvas; a magnifier follows it.
function place(element, left, top, width, height) {
    const percent = (part, whole) => `${(100 * part) / whole}%`;
    element.style.left = percent(left, canvas.width);
    element.style.top = percent(top, canvas.height);
    element.style.width = percent(width, canvas.width);
    element.style.height = percent(height, canvas.height);
}

// What stands in its place already is not moved, which would take its focus.
function putAt(index, element) {
    if (layer.children[index] !== element) layer.insertBefore(element, layer.children[index] ?? null);
    elements[index] = element;
}

function clearBehind(count) {
    while (layer.children.length > count) layer.lastChild.remove();
    elements.length = count;
}

export const reading = {
    readControls(many) {
        before = new Map(elements.map((element) => [element.dataset.control, element]));
        count = many;
        elements = [];
        if (count === 0) clearBehind(0);
    },
    readControl(index, control, kind, stop, at, size, left, top, width, height) {
        const key = `${control} ${kKinds[kind]}`;
        const there = elements[index]?.dataset.control === key;
        const element = there ? elements[index] : (before.get(key) ?? make(kKinds[kind]));
        element.dataset.control = key;
        name(element, kKinds[kind], textAt(at, size));
        offer(element, kKinds[kind], stop);
        place(element, left, top, width, height);
        putAt(index, element);
        if (index === count - 1) clearBehind(count);
    },
    readAnswer(index, value, minimum, maximum, at, size) {
        const element = elements[index];
        element.setAttribute("aria-valuenow", value);
        element.setAttribute("aria-valuemin", minimum);
        element.setAttribute("aria-valuemax", maximum);
        element.setAttribute("aria-valuetext", textAt(at, size));
    },
    focusOn(index) {
        following = true;
        if (index >= 0) elements[index].focus({ preventScroll: true });
        else if (layer.contains(document.activeElement)) document.activeElement.blur();
        following = false;
    },
    say(at, size) {
        announcements.textContent = textAt(at, size);
    },
};

export const isRead = (element) => layer.contains(element);

// The place of the first or last element that the focus can stand on.
export function isEnd(element, backwards) {
    const stops = elements.filter((one) => one.tabIndex === 0);
    return element === stops.at(backwards ? 0 : -1);
}

// A reader's own ways to come to an element and to use it.
export function followReader() {
    layer.addEventListener("focusin", (event) => {
        if (!following) program?.focus(elements.indexOf(event.target));
    });
    layer.addEventListener("focusout", (event) => {
        const next = event.relatedTarget;
        if (!following && next && !isRead(next)) program?.leave();
    });
    layer.addEventListener("click", (event) => {
        const index = elements.indexOf(event.target);
        if (index >= 0) program?.click(index);
    });
}
