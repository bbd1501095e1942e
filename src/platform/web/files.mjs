// The files of the site, by the names that they have in datas/.

import { isPicture, keepPicture, pictureCame } from "./pictures.mjs";

const version = document.documentElement.dataset.version;
const files = new Map();  // bytes, or null for what is not there
const loading = new Map();

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

async function loadNow(name) {
    const bytes = await bytesOf(`datas/${name}`);
    if (bytes && isPicture(name)) await keepPicture(name, bytes).catch(() => {});
    files.set(name, bytes);
}

export function load(name) {
    if (!loading.has(name)) loading.set(name, loadNow(name));
    return loading.get(name);
}

export const allIsLoaded = () => Promise.all(loading.values());

// What is there now; what is not is loaded for the next time.
export function fileNow(name) {
    if (!files.has(name)) load(name).then(pictureCame);
    return files.get(name) ?? null;
}
