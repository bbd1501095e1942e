// The canvas: what is drawn on it, how large it is, and when it is painted.

import { program, textAt, numbersAt } from "./program.mjs";
import { bitmapOf, pictureOf, wholeBitmapOf } from "./pictures.mjs";

export const canvas = document.getElementById("page");
const screenContext = canvas.getContext("2d");
let context = screenContext;  // what is drawn on
const kRestMs = 200;        // after which two fingers have come to rest
const kMostPixels = 9e6;    // which devices have room for
const kFace = '"Onze Tables", "Liberation Sans", Arimo, Arial, sans-serif';

const colorOf = (color) => `#${color.toString(16).padStart(6, "0")}`;
const fontOf = (height, bold) => `${bold ? "bold " : ""}${height}px ${kFace}`;

function roundBox(left, top, width, height, radius) {
    const r = Math.min(radius, width / 2, height / 2);
    context.moveTo(left + r, top);
    context.arcTo(left + width, top, left + width, top + height, r);
    context.arcTo(left + width, top + height, left, top + height, r);
    context.arcTo(left, top + height, left, top, r);
    context.arcTo(left, top, left + width, top, r);
    context.closePath();
}

export const drawing = {
    clipTo(left, top, width, height) {
        context.save();
        context.beginPath();
        context.rect(left, top, width, height);
        context.clip();
    },
    unclip: () => context.restore(),
    drawPicture(number, fromLeft, fromTop, fromWidth, fromHeight, left, top, width, height) {
        const picture = pictureOf(number);
        const onScreen = context === screenContext;
        const bitmap = onScreen ? bitmapOf(picture, width, height) : wholeBitmapOf(picture);
        if (!bitmap) return;
        const x = bitmap.width / picture.width;
        const y = bitmap.height / picture.height;
        context.imageSmoothingEnabled = true;
        context.imageSmoothingQuality = "high";
        context.drawImage(bitmap, fromLeft * x, fromTop * y, fromWidth * x, fromHeight * y, left, top, width, height);
    },
    fillBox(left, top, width, height, radius, color) {
        context.fillStyle = colorOf(color);
        if (radius === 0) return context.fillRect(left, top, width, height);
        context.beginPath();
        roundBox(left, top, width, height, radius);
        context.fill();
    },
    frameBox(left, top, width, height, line, radius, color) {
        context.fillStyle = colorOf(color);
        context.beginPath();
        roundBox(left, top, width, height, radius);
        roundBox(left + line, top + line, width - 2 * line, height - 2 * line, Math.max(0, radius - line));
        context.fill("evenodd");
    },
    fillPolygon(at, count, color) {
        const corners = numbersAt(at, 2 * count);
        context.fillStyle = colorOf(color);
        context.beginPath();
        for (let i = 0; i < count; ++i) context.lineTo(corners[2 * i], corners[2 * i + 1]);
        context.fill();
    },
    drawLine(x1, y1, x2, y2, width, color) {
        context.strokeStyle = colorOf(color);
        context.lineWidth = width;
        context.beginPath();
        context.moveTo(x1, y1);
        context.lineTo(x2, y2);
        context.stroke();
    },
    drawText(at, size, height, bold, left, baseline, scale, color) {
        context.save();
        context.translate(left, baseline);
        context.scale(scale, scale);
        context.font = fontOf(height, bold);
        context.fillStyle = colorOf(color);
        context.fillText(textAt(at, size), 0, 0);
        context.restore();
    },
    textWidth(at, size, height, bold) {
        context.font = fontOf(height, bold);
        return context.measureText(textAt(at, size)).width;
    },
};

// Has another canvas drawn on.
export function drawOn(other, act) {
    context = other.getContext("2d");
    act();
    context = screenContext;
}

// Where the page lies on the canvas, in its pixels.
export let page = { left: 0, top: 0, width: 640, height: 480 };

export function placePage(left, top, width, height) {
    page = { left, top, width, height };
}

// The pixel of the canvas that a point of the window is in.
export function pixelAt(event) {
    const box = canvas.getBoundingClientRect();
    const ratio = canvas.width / box.width;
    return [Math.floor((event.clientX - box.left) * ratio), Math.floor((event.clientY - box.top) * ratio)];
}

export const pixelRatio = () => canvas.width / canvas.getBoundingClientRect().width;

// The page's top left corner in CSS pixels of the window, and how many of them a pixel of the page is.
export function view() {
    const box = canvas.getBoundingClientRect();
    const ratio = pixelRatio();
    return { left: box.left + page.left / ratio, top: box.top + page.top / ratio, scale: page.width / ratio / 640 };
}

let damage = null;  // left, top, right, bottom

function paintNow() {
    if (!damage || !program) return;
    const [left, top, right, bottom] = damage;
    damage = null;
    program.paint(left, top, right - left, bottom - top);
}

export function repaint(left, top, width, height) {
    if (!damage) requestAnimationFrame(paintNow);
    const [l, t, r, b] = damage ?? [left, top, left, top];
    damage = [Math.min(l, left), Math.min(t, top), Math.max(r, left + width), Math.max(b, top + height)];
}

export const repaintAll = () => repaint(0, 0, canvas.width, canvas.height);

// A changed canvas is empty, and is painted before it is shown.
function resizeTo(width, height) {
    const zoom = Math.max(1, window.visualViewport?.scale ?? 1);
    const most = Math.sqrt(kMostPixels / (width * height));
    const ratio = Math.max(Math.min(zoom, most), Math.min(1, most));
    const [w, h] = [Math.round(width * ratio), Math.round(height * ratio)];
    if (canvas.width === w && canvas.height === h) return;
    canvas.width = w;
    canvas.height = h;
    if (!program) return;
    program.resize(w, h);
    repaintAll();
    paintNow();
}

// The browser's own count of pixels is exact, where it tells it and means the screen's.
function fit(entries) {
    const box = canvas.getBoundingClientRect();
    const told = entries?.[0].devicePixelContentBoxSize?.[0];
    const count = (length, exact) => {
        const pixels = length * devicePixelRatio;
        return Math.abs(exact - pixels) < 1 ? exact : Math.round(pixels);
    };
    resizeTo(count(box.width, told?.inlineSize), count(box.height, told?.blockSize));
}

let fitting = 0;

// Follows the window, the screen that it is on, and two fingers.
export function followSize() {
    const observer = new ResizeObserver(fit);
    try {
        observer.observe(canvas, { box: "device-pixel-content-box" });
    } catch {
        observer.observe(canvas);
        window.addEventListener("resize", () => fit());
    }
    window.visualViewport?.addEventListener("resize", () => {
        clearTimeout(fitting);
        fitting = setTimeout(fit, kRestMs);
    });
    fit();
}
