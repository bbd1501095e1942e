// The files of the site, by the names that they have in datas/, and the pictures among them.

const version = document.documentElement.dataset.version;
const files = new Map();  // bytes, or null for what is not there
const pictures = [];      // { name, blob, width, height, bitmap }
const loading = new Map();
const kLargerTimes = 3;
const kMostPictureBytes = 48 << 20;
let uses = 0;
let onPicture = () => {};

// A picture came, or came in another size.
export function whenPictureComes(act) {
    onPicture = act;
}

// What the page itself holds, or else its folder; null where there is none.
export async function bytesOf(path) {
    const inside = document.getElementById(path);
    if (inside) return Uint8Array.from(atob(inside.textContent), (letter) => letter.charCodeAt(0));
    try {
        const response = await fetch(`${path}?v=${version}`);
        return response.ok ? new Uint8Array(await response.arrayBuffer()) : null;
    } catch {
        return null;
    }
}

const isPng = (bytes) => bytes.length > 24 && bytes[0] === 0x89 && bytes[1] === 0x50;

// Larger pages are decoded when their size on the canvas is known.
async function keepPicture(name, bytes) {
    const header = new DataView(bytes.buffer, bytes.byteOffset);
    const picture = {
        name,
        blob: new Blob([bytes], { type: "image/png" }),
        width: header.getUint32(16),
        height: header.getUint32(20),
        bitmap: null,
    };
    picture.isPage = picture.width === 640 * kLargerTimes;
    picture.smaller = pictures.find((one) => `${one.name}.3x` === name);
    if (!picture.isPage) picture.bitmap = await createImageBitmap(picture.blob);
    pictures.push(picture);
}

async function loadNow(name) {
    const bytes = await bytesOf(`datas/${name}`);
    if (bytes && isPng(bytes)) await keepPicture(name, bytes).catch(() => {});
    files.set(name, bytes);
}

export function load(name) {
    if (!loading.has(name)) loading.set(name, loadNow(name));
    return loading.get(name);
}

// What is there now; what is not is loaded for the next time.
export function fileNow(name) {
    if (!files.has(name)) load(name).then(() => onPicture());
    return files.get(name) ?? null;
}

export function findPicture(name) {
    return fileNow(name) ? pictures.findIndex((picture) => picture.name === name) : -1;
}

export const pictureOf = (number) => pictures[number];

// The picture as a bitmap, as near to this size as there is one now; null where there is none yet.
export function bitmapOf(picture, width, height) {
    if (picture.isPage) {
        picture.lastUse = ++uses;
        if (picture.wanted !== `${width} ${height}`) scalePage(picture, width, height);
    }
    return picture.bitmap ?? picture.smaller?.bitmap;
}

// Off the way of what is painted; the browser need not know how to scale.
async function scalePage(picture, width, height) {
    const wanted = `${width} ${height}`;
    picture.wanted = wanted;
    const size = { resizeWidth: width, resizeHeight: height, resizeQuality: "high" };
    const whole = () => createImageBitmap(picture.blob);
    const bitmap = await (width < picture.width ? createImageBitmap(picture.blob, size).catch(whole) : whole());
    if (picture.wanted !== wanted) return bitmap.close();
    drop(picture);
    picture.wanted = wanted;
    picture.bitmap = bitmap;
    dropOld(picture);
    onPicture();
}

function drop(picture) {
    picture.bitmap?.close();
    picture.bitmap = picture.wanted = null;
}

const bytesIn = (bitmap) => (bitmap ? 4 * bitmap.width * bitmap.height : 0);
const bytesKept = () => pictures.reduce((sum, picture) => sum + (picture.isPage ? bytesIn(picture.bitmap) : 0), 0);

// Larger pages are kept as long as there is room for them, the others are decoded anew.
function dropOld(newest) {
    const pages = pictures.filter((picture) => picture.bitmap && picture.isPage && picture !== newest);
    pages.sort((a, b) => a.lastUse - b.lastUse);
    while (bytesKept() > kMostPictureBytes && pages.length > 0) drop(pages.shift());
}

// The picture as large as it is, for paper; null until it is there.
export function wholeBitmapOf(picture) {
    if (!picture.isPage) return picture.bitmap;
    picture.whole ??= createImageBitmap(picture.blob).then((bitmap) => (picture.wholeBitmap = bitmap));
    return picture.wholeBitmap ?? picture.bitmap ?? picture.smaller?.bitmap;
}

// Waits for what was asked for so far.
export async function allIsThere() {
    await Promise.all(loading.values());
    await Promise.all(pictures.map((picture) => picture.whole));
}

export function forgetWhole() {
    for (const picture of pictures) {
        picture.wholeBitmap?.close();
        picture.whole = picture.wholeBitmap = null;
    }
}

// The larger pages one after the other, so that a click finds its page ready.
export async function loadLarger(names, width, height) {
    for (const name of names) {
        await load(name);
        const picture = pictures.find((one) => one.name === name);
        if (picture && bytesKept() + 4 * width * height <= kMostPictureBytes) bitmapOf(picture, width, height);
    }
}
