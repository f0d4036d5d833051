// Keeps the page for times without a network, all of its files of one version together, and adds the
// headers that let page and program share memory. The pack keeps itself.

// Both are put in when the site is put together.
const Version = '@version@';
const Files = '@files@'.split(' ');
const Store = `talvora-page-${Version}`;
const PackList = 'pack/pack.json';

const worker = /** @type {any} */ (self);

async function keep() {
  const store = await caches.open(Store);
  await store.addAll(
    ['./', PackList, ...Files].map((file) => new Request(file, { cache: 'no-cache' })),
  );
  await worker.skipWaiting();
}

async function takeOver() {
  for (const name of await caches.keys())
    if (name.startsWith('talvora-page-') && name !== Store) await caches.delete(name);
  await worker.clients.claim();
}

/** @param {Response} reply */
function isolated(reply) {
  const headers = new Headers(reply.headers);
  headers.set('Cross-Origin-Opener-Policy', 'same-origin');
  headers.set('Cross-Origin-Embedder-Policy', 'require-corp');
  return new Response(reply.body, { status: reply.status, statusText: reply.statusText, headers });
}

/** @param {Request} request */
async function answer(request) {
  const kept = await (await caches.open(Store)).match(request, { ignoreSearch: true });
  return isolated(kept ?? (await fetch(request)));
}

worker.addEventListener('install', (/** @type {any} */ event) => event.waitUntil(keep()));
worker.addEventListener('activate', (/** @type {any} */ event) => event.waitUntil(takeOver()));
worker.addEventListener('fetch', (/** @type {any} */ event) => {
  if (event.request.method === 'GET') event.respondWith(answer(event.request));
});
