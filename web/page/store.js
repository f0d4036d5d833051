// Files of the pack that only sound, compressed as they came and kept for the next visit.

const storeOfReplies = () => globalThis.caches?.open('talvora-pack').catch(() => undefined);

/** @param {string} file */
export async function replyFor(file) {
  const reply = await fetch(`pack/${file}`);
  if (!reply.ok || reply.body === null) throw new Error(`pack/${file}: ${reply.status}`);
  return reply;
}

/** The file as it was kept, or as it comes; it is kept then. @param {string} file */
export async function replyOf(file) {
  const store = await storeOfReplies();
  const kept = await store?.match(`pack/${file}`);
  if (kept !== undefined) return kept;
  const reply = await replyFor(file);
  // A store without room keeps nothing, and the next visit fetches again.
  void store?.put(`pack/${file}`, reply.clone()).catch(() => undefined);
  return reply;
}

/** Keeps a file that nobody wants yet. @param {string} file */
export async function keepReply(file) {
  const store = await storeOfReplies();
  if (store !== undefined && (await store.match(`pack/${file}`)) === undefined)
    await store.put(`pack/${file}`, await replyFor(file));
}

/** What a file holds, unpacked. @param {string} file @returns {Promise<Uint8Array>} */
export async function contentOf(file) {
  const { body } = await replyOf(file);
  const plain = /** @type {ReadableStream} */ (body).pipeThrough(new DecompressionStream('gzip'));
  return new Uint8Array(await new Response(plain).arrayBuffer());
}

/** Drops what earlier packs left, and what is kept elsewhere. @param {string[]} files that are wanted here */
export async function dropOtherReplies(files) {
  const store = await storeOfReplies();
  const wanted = new Set(files.map((file) => new URL(`pack/${file}`, location.href).href));
  for (const request of (await store?.keys()) ?? [])
    if (!wanted.has(request.url)) await store?.delete(request);
}
