// Keeps the whole program, so that the network may be off, and replaces it as a whole: a newer version is loaded
// beside this one, and takes over when no page uses this one any more.

const kVersion = "@VERSION@";
const kFiles = @FILES@;  // with the digests of their bytes
const kCaches = `onze-tables ${self.registration.scope} `;  // of this folder's versions
const kCache = kCaches + kVersion;

async function digestOf(bytes) {
    const digest = await crypto.subtle.digest("SHA-256", bytes);
    return Array.from(new Uint8Array(digest), (byte) => byte.toString(16).padStart(2, "0")).join("");
}

const isOurs = async (response, file) =>
    response.ok && (await digestOf(await response.clone().arrayBuffer())) === kFiles[file];

// What the page has loaded need not come again. A file of another version, as while a server is being filled,
// makes the installation fail; the next visit tries again.
async function keep(cache, file) {
    const url = `${file}?v=${kVersion}`;
    let response = await fetch(url);
    if (!(await isOurs(response, file))) response = await fetch(url, { cache: "reload" });
    if (!(await isOurs(response, file))) throw new Error(`not of version ${kVersion}: ${file}`);
    await cache.put(file, response);
}

async function install() {
    const cache = await caches.open(kCache);
    for (const file of Object.keys(kFiles)) await keep(cache, file);
}

async function activate() {
    for (const name of await caches.keys()) {
        if (name.startsWith(kCaches) && name !== kCache) await caches.delete(name);
    }
    await self.clients.claim();
}

// The name in the cache of what is asked for.
function nameOf(request) {
    const { origin, pathname } = new URL(request.url);
    const isPage = request.mode === "navigate" && pathname.endsWith("/index.html");
    return isPage ? "./" : origin + pathname;
}

// A page that came from elsewhere in another version gets nothing of this one.
async function answer(request) {
    const version = new URL(request.url).searchParams.get("v");
    if (version && version !== kVersion) return fetch(request);
    const cache = await caches.open(kCache);
    return (await cache.match(nameOf(request))) ?? fetch(request);
}

self.addEventListener("install", (event) => event.waitUntil(install()));
self.addEventListener("activate", (event) => event.waitUntil(activate()));
self.addEventListener("fetch", (event) => {
    if (event.request.method === "GET" && event.request.url.startsWith(self.registration.scope))
        event.respondWith(answer(event.request));
});
