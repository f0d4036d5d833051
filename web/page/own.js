// The learner's own files, in the browser's private store. The core calls them without waiting, so
// that a number of nameless places is opened ahead; the first bytes of each tell what it holds.

const Places = 64;
const HeaderSize = 512;
const NameAt = 16;
const LongestName = 255;
const OpenTries = 20;
const OpenPauseMs = 150;

/**
 * @typedef {object} Handle
 * @property {(into: Uint8Array, options: {at: number}) => number} read
 * @property {(from: Uint8Array, options: {at: number}) => number} write
 * @property {(size: number) => void} truncate
 * @property {() => number} getSize
 * @property {() => void} flush
 */

/** A place in memory, for browsers that keep nothing: what is in it goes with the page. */
export class MemoryPlace {
  constructor() {
    this.bytes = new Uint8Array(0);
  }
  /** @param {Uint8Array} into @param {{at: number}} options */
  read(into, { at }) {
    const part = this.bytes.subarray(at, at + into.length);
    into.set(part);
    return part.length;
  }
  /** @param {Uint8Array} from @param {{at: number}} options */
  write(from, { at }) {
    if (at + from.length > this.bytes.length) this.truncate(at + from.length);
    this.bytes.set(from, at);
    return from.length;
  }
  /** @param {number} size */
  truncate(size) {
    const bytes = new Uint8Array(size);
    bytes.set(this.bytes.subarray(0, size));
    this.bytes = bytes;
  }
  getSize() {
    return this.bytes.length;
  }
  flush() {}
}

/** @param {Uint8Array} bytes */
function checksum(bytes) {
  let sum = 17;
  for (const byte of bytes) sum = (Math.imul(sum, 31) + byte) | 0;
  return sum;
}

export class OwnFiles {
  /** @param {Handle[]} places */
  constructor(places) {
    /** @type {Map<string, Handle>} */
    this.files = new Map();
    /** @type {Handle[]} */
    this.free = [];
    this.generation = 0;
    /** @type {Map<string, number>} */
    const generations = new Map();
    for (const place of places) {
      const header = OwnFiles.header(place);
      if (header === null) {
        this.free.push(place);
        continue;
      }
      this.generation = Math.max(this.generation, header.generation);
      // A rename that was cut short leaves two of a name: the younger one is the file.
      const other = this.files.get(header.name);
      if (other !== undefined && (generations.get(header.name) ?? 0) > header.generation) {
        this.empty(place);
        continue;
      }
      if (other !== undefined) this.empty(other);
      this.files.set(header.name, place);
      generations.set(header.name, header.generation);
    }
  }

  /** @param {Handle} place @returns {{name: string, generation: number} | null} */
  static header(place) {
    const bytes = new Uint8Array(HeaderSize);
    if (place.getSize() < HeaderSize || place.read(bytes, { at: 0 }) < HeaderSize) return null;
    const numbers = new DataView(bytes.buffer);
    const length = numbers.getUint32(8, true);
    if (length === 0 || length > LongestName) return null;
    if (numbers.getInt32(0, true) !== checksum(bytes.subarray(4))) return null;
    const name = new TextDecoder().decode(bytes.subarray(NameAt, NameAt + length));
    return { name, generation: numbers.getUint32(4, true) };
  }

  /** @param {Handle} place @param {string} name */
  label(place, name) {
    const bytes = new Uint8Array(HeaderSize);
    const letters = new TextEncoder().encode(name);
    if (letters.length > LongestName) return false;
    const numbers = new DataView(bytes.buffer);
    numbers.setUint32(4, ++this.generation, true);
    numbers.setUint32(8, letters.length, true);
    bytes.set(letters, NameAt);
    numbers.setInt32(0, checksum(bytes.subarray(4)), true);
    const whole = place.write(bytes, { at: 0 }) === HeaderSize;
    place.flush();
    return whole;
  }

  /** @param {Handle} place */
  empty(place) {
    place.truncate(0);
    place.flush();
    this.free.push(place);
  }

  /** Runs what may fail because the store is full or gone; then it is -1.
   * @param {() => number} deed */
  static tried(deed) {
    try {
      return deed();
    } catch {
      return -1;
    }
  }

  /** @param {string} name */
  size(name) {
    const place = this.files.get(name);
    return place === undefined ? -1 : OwnFiles.tried(() => place.getSize() - HeaderSize);
  }

  /** @param {string} name */
  create(name) {
    const place = this.free.pop();
    if (place === undefined) return -1;
    return OwnFiles.tried(() => {
      place.truncate(HeaderSize);
      if (!this.label(place, name)) return -1;
      this.files.set(name, place);
      return 0;
    });
  }

  /** @param {string} name @param {number} offset @param {Uint8Array} into */
  read(name, offset, into) {
    const place = this.files.get(name);
    if (place === undefined) return -1;
    return OwnFiles.tried(() => place.read(into, { at: HeaderSize + offset }));
  }

  /** @param {string} name @param {number} offset @param {Uint8Array} from */
  write(name, offset, from) {
    const place = this.files.get(name);
    if (place === undefined) return -1;
    return OwnFiles.tried(() =>
      place.write(from, { at: HeaderSize + offset }) === from.length ? 0 : -1,
    );
  }

  /** @param {string} name @param {number} size */
  truncate(name, size) {
    const place = this.files.get(name);
    if (place === undefined) return -1;
    return OwnFiles.tried(() => {
      place.truncate(HeaderSize + size);
      return 0;
    });
  }

  /** @param {string} name */
  sync(name) {
    const place = this.files.get(name);
    if (place === undefined) return -1;
    return OwnFiles.tried(() => {
      place.flush();
      return 0;
    });
  }

  /** @param {string} from @param {string} to */
  rename(from, to) {
    const place = this.files.get(from);
    if (place === undefined) return -1;
    return OwnFiles.tried(() => {
      if (!this.label(place, to)) return -1;
      const replaced = this.files.get(to);
      this.files.delete(from);
      this.files.set(to, place);
      if (replaced !== undefined && replaced !== place) this.empty(replaced);
      return 0;
    });
  }

  /** @param {string} name */
  remove(name) {
    const place = this.files.get(name);
    if (place === undefined) return 0;
    return OwnFiles.tried(() => {
      this.files.delete(name);
      this.empty(place);
      return 0;
    });
  }

  list() {
    return [...this.files.keys()];
  }
}

/**
 * Opens a place; the worker of a page that is just going may still have it.
 * @param {any} file
 * @returns {Promise<Handle>}
 */
async function openPlace(file) {
  for (let left = OpenTries; ; --left) {
    try {
      return await file.createSyncAccessHandle();
    } catch (fault) {
      if (left === 0) throw fault;
      await new Promise((resolve) => setTimeout(resolve, OpenPauseMs));
    }
  }
}

/**
 * Opens the learner's files; without a store that keeps them they live as long as the page.
 * @returns {Promise<{files: OwnFiles, kept: boolean}>}
 */
export async function openOwnFiles() {
  try {
    const root = await navigator.storage.getDirectory();
    const folder = await root.getDirectoryHandle('learner', { create: true });
    /** @type {Handle[]} */
    const places = [];
    for (let number = 0; number < Places; ++number) {
      const file = await folder.getFileHandle(`place-${number}`, { create: true });
      places.push(await openPlace(file));
    }
    return { files: new OwnFiles(places), kept: true };
  } catch {
    return { files: new OwnFiles(Array.from({ length: Places }, () => new MemoryPlace())), kept: false };
  }
}
