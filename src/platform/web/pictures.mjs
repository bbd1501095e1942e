// The pictures of the program: decoded when they are drawn first, larger pages at the size at which they are drawn.

const kPicture = /^(1[1-6]|anim)(\.3x)?$/;
const kLargerPageWidth = 1920;
const kMostPictureBytes = 48 << 20;

const pictures = [];  // { name, blob, width, height, bitmap }
let uses = 0;
let onCome = () => {};
let onBroken = () => {};

// One came, or came in another size; or turned out to be none when it was decoded.
export function followPictures(come, broken) {
    onCome = come;
    onBroken = broken;
}

export const pictureCame = () => onCome();
export const isPicture = (name) => kPicture.test(name);
export const findPicture = (name) => pictures.findIndex((picture) => picture.name === name);
export const pictureOf = (number) => pictures[number];

const isPng = (bytes) => bytes.length > 24 && bytes[0] === 0x89 && bytes[1] === 0x50;

// A PNG file tells its size, others tell it when they are decoded.
export async function keepPicture(name, bytes) {
    const picture = { name, blob: new Blob([bytes]), bitmap: null };
    if (isPng(bytes)) {
        const header = new DataView(bytes.buffer, bytes.byteOffset);
        [picture.width, picture.height] = [header.getUint32(16), header.getUint32(20)];
    } else {
        picture.bitmap = await createImageBitmap(picture.blob);
        [picture.width, picture.height] = [picture.bitmap.width, picture.bitmap.height];
    }
    picture.isLargerPage = name.endsWith(".3x") && picture.width === kLargerPageWidth;
    picture.smaller = pictures.find((one) => `${one.name}.3x` === name);
    pictures.push(picture);
}

function spoil(picture) {
    picture.name = "";
    onBroken();
}

function use(picture, bitmap) {
    picture.bitmap = bitmap;
    onCome();
}

function decode(picture) {
    if (picture.bitmap) return null;
    picture.decoding ??= createImageBitmap(picture.blob).then(
        (bitmap) => use(picture, bitmap), () => spoil(picture));
    return picture.decoding;
}

// Has it ready to be drawn.
export async function decodeAhead(name) {
    const picture = pictures[findPicture(name)];
    if (picture && !picture.isLargerPage) await decode(picture);
}

// The picture as a bitmap, as near to this size as there is one now; null where there is none yet.
export function bitmapOf(picture, width, height) {
    if (!picture.isLargerPage) {
        decode(picture);
        return picture.bitmap;
    }
    picture.lastUse = ++uses;
    if (picture.wanted !== `${width} ${height}`) scalePage(picture, width, height).catch(() => {});
    return picture.bitmap ?? bitmapOf(picture.smaller, width, height);
}

// Off the way of what is painted; the browser need not know how to scale.
async function scalePage(picture, width, height) {
    const wanted = `${width} ${height}`;
    picture.wanted = wanted;
    const size = { resizeWidth: width, resizeHeight: height, resizeQuality: "high" };
    const whole = () => createImageBitmap(picture.blob);
    const bitmap = await (width < picture.width ? createImageBitmap(picture.blob, size).catch(whole) : whole());
    if (picture.wanted !== wanted) return bitmap.close();
    picture.bitmap?.close();
    dropOld(picture);
    use(picture, bitmap);
}

function drop(picture) {
    picture.bitmap?.close();
    picture.bitmap = picture.wanted = null;
}

const bytesIn = (bitmap) => (bitmap ? 4 * bitmap.width * bitmap.height : 0);
const larger = () => pictures.filter((picture) => picture.isLargerPage);
const bytesKept = () => larger().reduce((sum, picture) => sum + bytesIn(picture.bitmap), 0);

// Larger pages are kept as long as there is room for them, the others are decoded anew.
function dropOld(newest) {
    const pages = larger().filter((picture) => picture.bitmap && picture !== newest);
    pages.sort((a, b) => a.lastUse - b.lastUse);
    while (bytesKept() > kMostPictureBytes && pages.length > 0) drop(pages.shift());
}

// The picture as large as it is, for paper; null until it is there.
export function wholeBitmapOf(picture) {
    if (!picture.isLargerPage) return bitmapOf(picture);
    const keep = (bitmap) => (picture.wholeBitmap = bitmap);
    picture.whole ??= createImageBitmap(picture.blob).then(keep).catch(() => {});
    return picture.wholeBitmap ?? picture.bitmap ?? picture.smaller?.bitmap;
}

// Waits for those that paper asked for.
export const allIsWhole = () => Promise.all(pictures.map((picture) => picture.whole ?? picture.decoding));

export function forgetWhole() {
    for (const picture of pictures) {
        picture.wholeBitmap?.close();
        picture.whole = picture.wholeBitmap = null;
    }
}

// A larger page, while there is room for it.
export function scaleAhead(name, width, height) {
    const picture = pictures[findPicture(name)];
    const hasRoom = bytesKept() + 4 * width * height <= kMostPictureBytes;
    if (picture?.isLargerPage && hasRoom) bitmapOf(picture, width, height);
}
