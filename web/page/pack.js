// The content pack: which files it has, memory for them that all workers see, and how they are read.
// What has not come yet is waited for.

/** When a file is fetched: ahead of the menu, behind it, last and only to be kept, or when it is wanted. */
export const Stage = Object.freeze({ First: 0, Late: 1, Kept: 2, Wanted: 3 });

/** @typedef {{name: string, size: number, file: string, packed: number, stage: number}} Entry */
/**
 * @typedef {object} Pack
 * @property {Entry[]} entries
 * @property {SharedArrayBuffer[]} contents of the files, in the order of the entries, where there is
 *   memory to share; nothing for those that the core does not read
 * @property {ArrayBufferLike} arrived a number a file: 1 when it is there
 */

/** Reads what the pack has and makes room for it. @returns {Promise<Pack>} */
export async function openPack() {
  const reply = await fetch('pack/pack.json');
  if (!reply.ok) throw new Error(`pack/pack.json: ${reply.status}`);
  /** @type {Entry[]} */
  const entries = await reply.json();
  const numbers = entries.length * Int32Array.BYTES_PER_ELEMENT;
  if (!globalThis.crossOriginIsolated)
    return { entries, contents: [], arrived: new ArrayBuffer(numbers) };
  const sizes = entries.map(({ size, stage }) => (stage < Stage.Kept ? size : 0));
  return {
    entries,
    contents: sizes.map((size) => new SharedArrayBuffer(size)),
    arrived: new SharedArrayBuffer(numbers),
  };
}

/** Which files there are, as the core asks. @param {Entry[]} entries */
export const indexOf = (entries) => ({
  /** @param {string} name */
  find: (name) => entries.findIndex((entry) => entry.name === name),
  /** @param {number} file */
  size: (file) => entries[file].size,
});

/**
 * The pack as the core reads it; `waits` hears when it has to wait for a file and when that is over.
 * @param {Pack} pack
 * @param {(waiting: boolean) => void} waits
 */
export function readerOf({ entries, contents, arrived }, waits) {
  const signs = new Int32Array(arrived);
  /** @param {number} file */
  const waitFor = (file) => {
    if (Atomics.load(signs, file) !== 0) return;
    waits(true);
    Atomics.wait(signs, file, 0);
    waits(false);
  };
  return {
    ...indexOf(entries),
    /** @param {number} file @param {number} offset @param {Uint8Array} into */
    read: (file, offset, into) => {
      waitFor(file);
      into.set(new Uint8Array(contents[file], offset, into.length));
    },
  };
}
