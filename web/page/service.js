// Keeps the page for times without a network, all of its files of one version together, and adds the
// headers that let page and program share memory. The pack keeps itself.

// Both are put in when the site is put together.
const Version = '@version@';
const Files = '@files@'.split(' ');
const Store = `talvora-page-${Version}`;
const PackList = 'pack/pack.json';

const worker = /** @type {any} */ (self);

/** @param {Response} reply */
function isolated(reply) {
  const headers = new Headers(reply.headers);
  headers.set('Cross-Origin-Opener-Policy', 'same-origin');
  headers.set('Cross-Origin-Embedder-Policy', 'require-corp');
  return new Response(reply.body, { status: reply.status, statusText: reply.statusText, headers });
}

/** @param {string} file */
async function keepOne(file) {
  const reply = await fetch(file, { cache: 'no-cache' });
  if (!reply.ok) throw new Error(`${file}: ${reply.status}`);
  await (await caches.open(Store)).put(file, isolated(reply));
}

async function keep() {
  await Promise.all(['./', PackList, ...Files].map(keepOne));
  await worker.skipWaiting();
}

async function takeOver() {
  for (const name of await caches.keys())
    if (name.startsWith('talvora-page-') && name !== Store) await caches.delete(name);
  await worker.clients.claim();
}

/** @param {Request} request */
async function answer(request) {
  const kept = await caches.match(request, { ignoreSearch: true, cacheName: Store });
  return kept ?? isolated(await fetch(request));
}

worker.addEventListener('install', (/** @type {any} */ event) => {
  // Where the browser can, it answers with what is kept and need not start this worker for it.
  void event.addRoutes?.({ condition: { requestMethod: 'get' }, source: { cacheName: Store } });
  event.waitUntil(keep());
});
worker.addEventListener('activate', (/** @type {any} */ event) => event.waitUntil(takeOver()));
worker.addEventListener('fetch', (/** @type {any} */ event) => {
  if (event.request.method === 'GET') event.respondWith(answer(event.request));
});
