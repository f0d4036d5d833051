// The content pack: fetched compressed, held outside the program's memory.

/** @typedef {{name: string, size: number, file: string, packed: number}} Entry */

/**
 * @param {Entry} entry
 * @param {(bytes: number) => void} came
 */
async function fetchOne(entry, came) {
  const reply = await fetch(`pack/${entry.file}`);
  if (!reply.ok || reply.body === null) throw new Error(`pack/${entry.file}: ${reply.status}`);
  const counted = new TransformStream({
    transform(chunk, out) {
      came(chunk.length);
      out.enqueue(chunk);
    },
  });
  const plain = reply.body.pipeThrough(counted).pipeThrough(new DecompressionStream('gzip'));
  const bytes = new Uint8Array(entry.size);
  let at = 0;
  const reader = plain.getReader();
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    if (at + part.value.length > bytes.length) throw new Error(`pack/${entry.file}: too long`);
    bytes.set(part.value, at);
    at += part.value.length;
  }
  if (at !== entry.size) throw new Error(`pack/${entry.file}: cut short`);
  return bytes;
}

/**
 * Fetches the pack; `progress` hears what part of it is there.
 * @param {(part: number) => void} progress
 */
export async function fetchPack(progress) {
  /** @type {Entry[]} */
  const entries = await (await fetch('pack/pack.json')).json();
  const all = entries.reduce((sum, entry) => sum + entry.packed, 0);
  let came = 0;
  const contents = await Promise.all(
    entries.map((entry) =>
      fetchOne(entry, (bytes) => {
        came += bytes;
        progress(came / all);
      }),
    ),
  );
  return {
    /** @param {string} name */
    find: (name) => entries.findIndex((entry) => entry.name === name),
    /** @param {number} file */
    size: (file) => entries[file].size,
    /** @param {number} file @param {number} offset @param {Uint8Array} into */
    read: (file, offset, into) => into.set(contents[file].subarray(offset, offset + into.length)),
  };
}
