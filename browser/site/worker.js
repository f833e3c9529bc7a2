// Keeps the whole program for use without a network. The build puts in the version and the files,
// so that another version is another worker: it fetches its files while the present version is in
// use, and the next visit is to the new one.

const Version = "VERSION";
const Files = ["FILES"];

const worker = /** @type {any} */ (self);

worker.addEventListener("install", (/** @type {any} */ event) => {
  const keep = async () => {
    const cache = await caches.open(Version);
    await cache.addAll(Files.map((file) => new Request(file, { cache: "no-cache" })));
    await worker.skipWaiting();
  };
  event.waitUntil(keep());
});

worker.addEventListener("activate", (/** @type {any} */ event) => {
  const dropOthers = async () => {
    const names = await caches.keys();
    const others = names.filter((name) => name.startsWith("clinorama-") && name !== Version);
    await Promise.all(others.map((name) => caches.delete(name)));
  };
  event.waitUntil(dropOthers());
});

worker.addEventListener("fetch", (/** @type {any} */ event) => {
  const answer = async () => {
    const cache = await caches.open(Version);
    const kept = await cache.match(event.request, { ignoreSearch: true });
    return kept ?? fetch(event.request);
  };
  event.respondWith(answer());
});
