// Keeps the files of the page, all of one version, so that the game also starts without a network. Only the files that
// the build made are kept: a server that is being updated, or breaks off, leaves the version before in use. A new one
// takes over when no page of the old one is open any more: a reload is not enough, the next start after that is.
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

// What the page has just loaded is only asked after. A server that tells versions apart by the second may answer wrongly,
// which shows: then all is loaded anew.
self.addEventListener('install', (event) => event.waitUntil(keep('no-cache').catch(() => keep('reload'))));
self.addEventListener('activate', (event) => event.waitUntil(forget()));
self.addEventListener('fetch', (event) => event.respondWith(answer(event.request)));
