// Keeps the whole program for use without a network. The build puts in the version and the files,
// so that another version is another worker: it fetches its files while the present version is in
// use, and takes over when no tab shows that any more, as files of two versions do not fit
// together.

const Version = "VERSION";
const Files = ["FILES"];

const worker = /** @type {any} */ (self);

worker.addEventListener("install", (/** @type {any} */ event) => {
  const keep = async () => {
    const cache = await caches.open(Version);
    await cache.addAll(Files.map((file) => new Request(file, { cache: "no-cache" })));
  };
  event.waitUntil(keep());
});

worker.addEventListener("activate", (/** @type {any} */ event) => {
  const dropOthers = async () => {
    const names = await caches.keys();
    const others = names.filter((name) => name.startsWith("clinorama-") && name !== Version);
    await Promise.all(others.map((name) => caches.delete(name)));
    await worker.clients.claim(); // the tab of the first visit
  };
  event.waitUntil(dropOthers());
});

worker.addEventListener("fetch", (/** @type {any} */ event) => {
  const answer = async () => {
    const cache = await caches.open(Version);
    // Some servers know the document by the folder's name only.
    const address = event.request.url.replace(/index\.html(?=$|[?#])/, "");
    const kept = await cache.match(address, { ignoreSearch: true, ignoreVary: true });
    return kept ?? fetch(event.request);
  };
  event.respondWith(answer());
});
