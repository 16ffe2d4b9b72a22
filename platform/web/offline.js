// Caches the files of the page, all of one version, so that the game also starts without a network. Only files with the
// build's digests are cached: while a server is updated, or fails, the old version stays in use. A new version takes over
// once no page of the old one is open: not at a reload, but at the next start.
'use strict';

const digests = {
  // The SHA-256 of each file, by the build.@DIGESTS@
};
const {scope} = self.registration;
const ours = `tumble ${scope} `; // other pages of the origin have caches too
const kept = `${ours}@VERSION@`;

const asked = (file, cache) => {
  const digest = digests[file].replace(/../g, (byte) => String.fromCharCode(parseInt(byte, 16)));
  return new Request(file, {cache, integrity: `sha256-${btoa(digest)}`});
};
const keep = async (cache) => {
  const files = await caches.open(kept);
  return files.addAll(Object.keys(digests).map((file) => asked(file, cache)));
};

const forget = async () => {
  const old = (await caches.keys()).filter((name) => name.startsWith(ours) && name !== kept);
  return Promise.all(old.map((name) => caches.delete(name)));
};

const answer = async (request) => {
  const address = request.url.replace(/(index\.html)?([?#].*)?$/, '');
  return await caches.match(address, {cacheName: kept, ignoreVary: true}) ?? fetch(request);
};

// The page has just loaded the files, so that they are only revalidated. A server whose dates are too coarse for that may
// answer with an old file, which the digest shows: then all files are loaded again.
self.addEventListener('install', (event) => event.waitUntil(keep('no-cache').catch(() => keep('reload'))));
self.addEventListener('activate', (event) => event.waitUntil(forget()));
self.addEventListener('fetch', (event) => event.respondWith(answer(event.request)));
