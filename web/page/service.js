// Keeps the page and the pack for times without a network, and adds the headers that let page and
// program share memory.
const Store = 'talvora-1';

const worker = /** @type {any} */ (self);

worker.addEventListener('install', () => worker.skipWaiting());
worker.addEventListener('activate', (/** @type {any} */ event) =>
  event.waitUntil(worker.clients.claim()),
);

/** @param {Response} reply */
function isolated(reply) {
  const headers = new Headers(reply.headers);
  headers.set('Cross-Origin-Opener-Policy', 'same-origin');
  headers.set('Cross-Origin-Embedder-Policy', 'require-corp');
  return new Response(reply.body, { status: reply.status, statusText: reply.statusText, headers });
}

/** @param {Request} request */
async function answer(request) {
  const store = await caches.open(Store);
  const isPack = new URL(request.url).pathname.includes('/pack/') && !request.url.endsWith('.json');
  const kept = await store.match(request);
  // The files of the pack have their content in their names and never change.
  if (isPack && kept !== undefined) return isolated(kept);
  try {
    const reply = await fetch(request);
    if (reply.ok) await store.put(request, reply.clone());
    return isolated(reply);
  } catch (fault) {
    if (kept !== undefined) return isolated(kept);
    throw fault;
  }
}

worker.addEventListener('fetch', (/** @type {any} */ event) => {
  if (event.request.method === 'GET') event.respondWith(answer(event.request));
});
