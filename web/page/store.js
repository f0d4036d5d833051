// Files of the pack, compressed as they came and kept for the next visit.

const Store = 'talvora-pack';

/** The file as it was kept, or as it comes; it is kept then. @param {string} file */
export async function replyOf(file) {
  const address = `pack/${file}`;
  const store = await globalThis.caches?.open(Store).catch(() => undefined);
  const kept = await store?.match(address);
  if (kept !== undefined) return kept;
  const reply = await fetch(address);
  if (!reply.ok || reply.body === null) throw new Error(`${address}: ${reply.status}`);
  // A store without room keeps nothing, and the next visit fetches again.
  void store?.put(address, reply.clone()).catch(() => undefined);
  return reply;
}

/** What a file holds, unpacked. @param {string} file @returns {Promise<Uint8Array>} */
export async function contentOf(file) {
  const { body } = await replyOf(file);
  const plain = /** @type {ReadableStream} */ (body).pipeThrough(new DecompressionStream('gzip'));
  return new Uint8Array(await new Response(plain).arrayBuffer());
}

/** Drops what earlier packs left. @param {string[]} files that are still wanted */
export async function dropOthers(files) {
  const store = await globalThis.caches?.open(Store).catch(() => undefined);
  const wanted = new Set(files.map((file) => new URL(`pack/${file}`, location.href).href));
  for (const request of (await store?.keys()) ?? [])
    if (!wanted.has(request.url)) await store?.delete(request);
}
