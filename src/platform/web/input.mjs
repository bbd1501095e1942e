// Mouse, pen, finger, wheel and keys.

import { program, pressKey } from "./program.mjs";
import { canvas, pixelAt, pixelRatio } from "./canvas.mjs";
import { isEnd, isRead } from "./reading.mjs";

const kDoubleClickTime = 500;
const kDoubleClickDistance = { mouse: 5, pen: 10, touch: 24 };  // CSS pixels

let pressed = null;  // the pointer that is down

function lose() {
    pressed = null;
    program?.lose();
}

function press(event) {
    if (!program || event.button !== 0) return;
    // A second finger means to enlarge the page.
    if (!event.isPrimary) return lose();
    pressed = event.pointerId;
    canvas.setPointerCapture(event.pointerId);
    const distance = (kDoubleClickDistance[event.pointerType] ?? 5) * pixelRatio();
    program.press(
        ...pixelAt(event), event.pointerType === "touch", event.timeStamp, kDoubleClickTime, distance);
}

function release(event) {
    if (!program || event.pointerId !== pressed || event.button !== 0) return;
    pressed = null;
    program.release(...pixelAt(event));
}

function move(event) {
    if (!program || !event.isPrimary) return;
    if (pressed !== null && !(event.buttons & 1)) lose();
    program.move(...pixelAt(event));
}

function turn(event) {
    if (program && !event.ctrlKey) program.wheel(...pixelAt(event), event.wheelDeltaY ?? 0);
}

// The keys of the page; those of its margin and the browser's own are theirs. Behind the last thing of the page
// Tab goes on to the margin.
function keyDown(event) {
    const at = document.activeElement;
    const elsewhere = at && at !== document.body && !isRead(at);
    if (!program || elsewhere || event.altKey || event.isComposing) return;
    if (event.key === "Tab" && isRead(at) && isEnd(at, event.shiftKey)) return;
    if (pressKey(event)) event.preventDefault();
}

export function listen() {
    canvas.addEventListener("pointerdown", press);
    canvas.addEventListener("pointermove", move);
    canvas.addEventListener("pointerup", release);
    canvas.addEventListener("pointercancel", lose);
    canvas.addEventListener("wheel", turn, { passive: true });
    // A finger held on an arrow repeats it.
    canvas.addEventListener("contextmenu", (event) => event.preventDefault());
    document.addEventListener("keydown", keyDown);
    window.addEventListener("blur", lose);
}
