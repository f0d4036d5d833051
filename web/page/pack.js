// The content pack: which files it has, where they are kept for the next visit, and how they are read. The
// files of a stage are kept unpacked, as one file of the browser's private store, and read there; what is
// not there yet comes through memory that all workers see, and is waited for.
import { openPlace } from './own.js';

/** When a file is fetched: ahead of the menu, behind it, last and only to be kept, or when it is wanted. */
export const Stage = Object.freeze({ First: 0, Late: 1, Kept: 2, Wanted: 3 });
/** The stages that the core reads. @type {number[]} */
export const Read = [Stage.First, Stage.Late];

/** @typedef {{name: string, size: number, file: string, packed: number, stage: number}} Entry */
/** @typedef {Map<number, {place: import('./own.js').Place, start: number}>} Kept where files lie, by the numbers of their entries */
/**
 * @typedef {object} Order what is to be fetched
 * @property {Entry[]} entries
 * @property {number[]} wanted the numbers of those that the core waits for
 * @property {SharedArrayBuffer[]} contents room for these, where there is memory to share
 * @property {ArrayBufferLike} arrived a number an entry: 1 when it is there
 */

/** Where the files of a stage lie in the one that they are kept in, behind their names. @param {Entry[]} entries @param {number} stage */
function shelfOf(entries, stage) {
  const files = [...entries.keys()].filter((file) => entries[file].stage === stage);
  const names = new TextEncoder().encode(files.map((file) => entries[file].file).join());
  let size = names.length;
  const starts = files.map((file) => {
    size += entries[file].size;
    return { file, start: size - entries[file].size };
  });
  return { names, starts, size };
}

/** @param {number} stage */
async function openShelf(stage) {
  const folder = await navigator.storage.getDirectory();
  return openPlace(await folder.getFileHandle(`pack-${stage}`, { create: true }));
}

/** Opens what is kept. @param {Entry[]} entries */
export async function openKept(entries) {
  const kept = /** @type {Kept} */ (new Map());
  const openStage = async (/** @type {number} */ stage) => {
    const { names, starts, size } = shelfOf(entries, stage);
    const place = await openShelf(stage);
    const itsNames = new Uint8Array(names.length);
    place.read(itsNames, { at: 0 });
    const isWhole = place.getSize() === size && names.every((byte, at) => byte === itsNames[at]);
    if (isWhole) for (const { file, start } of starts) kept.set(file, { place, start });
    else place.close?.();
  };
  // A browser that keeps nothing fetches anew each time.
  await Promise.all(Read.map((stage) => openStage(stage).catch(() => undefined)));
  return kept;
}

/** Keeps the files of a stage for the next visit. @param {Entry[]} entries @param {number} stage @param {Map<number, Uint8Array>} contents */
export async function keep(entries, stage, contents) {
  const { names, starts } = shelfOf(entries, stage);
  const place = await openShelf(stage);
  try {
    place.truncate(0);
    for (const { file, start } of starts)
      place.write(contents.get(file) ?? new Uint8Array(), { at: start });
    place.flush();
    // The names come last: they say that all is there.
    place.write(names, { at: 0 });
  } finally {
    place.close?.();
  }
}

/** What is not kept. @param {Entry[]} entries @param {Kept} kept @returns {Order} */
export function orderOf(entries, kept) {
  const sharing = globalThis.crossOriginIsolated;
  const numbers = entries.length * Int32Array.BYTES_PER_ELEMENT;
  const wanted = [...entries.keys()].filter(
    (file) => Read.includes(entries[file].stage) && !kept.has(file),
  );
  const contents = /** @type {SharedArrayBuffer[]} */ ([]);
  if (sharing)
    for (const file of wanted) contents[file] = new SharedArrayBuffer(entries[file].size);
  const arrived = sharing ? new SharedArrayBuffer(numbers) : new ArrayBuffer(numbers);
  return { entries, wanted, contents, arrived };
}

/**
 * The pack as the core reads it.
 * @param {Entry[]} entries
 * @param {Kept} kept
 * @param {(file: number, offset: number, into: Uint8Array) => unknown} readComing reads one that is not
 */
export const readerOf = (entries, kept, readComing) => ({
  /** @param {string} name */
  find: (name) => entries.findIndex((entry) => entry.name === name),
  /** @param {number} file */
  size: (file) => entries[file].size,
  /** @param {number} file @param {number} offset @param {Uint8Array} into */
  read: (file, offset, into) => {
    const its = kept.get(file);
    return its?.place.read(into, { at: its.start + offset }) ?? readComing(file, offset, into);
  },
});

/**
 * Reads files that come through shared memory; `waits` hears when there is one to be waited for and when
 * that is over.
 * @param {Order} order
 * @param {(waiting: boolean) => void} waits
 */
export function comingFrom({ contents, arrived }, waits) {
  const signs = new Int32Array(arrived);
  /** @param {number} file @param {number} offset @param {Uint8Array} into */
  return (file, offset, into) => {
    if (Atomics.load(signs, file) === 0) {
      waits(true);
      Atomics.wait(signs, file, 0);
      waits(false);
    }
    into.set(new Uint8Array(contents[file], offset, into.length));
  };
}
