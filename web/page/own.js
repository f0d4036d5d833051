// The learner's own files, in the browser's private store. The core calls them without waiting, so
// they are held in memory, and what becomes of them is written behind one another into a log: a page
// that is killed at any moment leaves all that was written up to there, and a rename is one record.
// Of the two logs one counts; it is written anew into the other when it has grown.

const LogNames = ['log-0', 'log-1'];
const Incoming = 'incoming';
const Magic = 0x314c5654;
const HeaderSize = 12; // magic, generation, checksum
const RecordHead = 16; // kind, length of the name, number, length of the data
const RecordTail = 4; // checksum
const LongestName = 1024;
export const LargestFile = 64 * 1024 * 1024;
/** A log this much longer than what it says is written anew. */
const Slack = 256 * 1024;
const OpenTries = 20;
const OpenPauseMs = 150;

const Deed = Object.freeze({ Create: 1, Write: 2, Truncate: 3, Rename: 4, Remove: 5 });

/**
 * @typedef {object} Place a file of the private store, or memory in its stead
 * @property {(into: Uint8Array, options: {at: number}) => number} read
 * @property {(from: Uint8Array, options: {at: number}) => number} write
 * @property {(size: number) => void} truncate
 * @property {() => number} getSize
 * @property {() => void} flush
 * @property {() => void} [close]
 */

const Nothing = new Uint8Array(0);

/** Bytes that grow; also a place in memory, for browsers that keep nothing. */
export class MemoryPlace {
  /** @param {Uint8Array} [bytes] */
  constructor(bytes = Nothing) {
    this.room = new Uint8Array(0);
    this.size = 0;
    this.write(bytes, { at: 0 });
  }
  get bytes() {
    return this.room.subarray(0, this.size);
  }
  /** @param {Uint8Array} into @param {{at: number}} options */
  read(into, { at }) {
    const part = this.bytes.subarray(at, at + into.length);
    into.set(part);
    return part.length;
  }
  /** @param {Uint8Array} from @param {{at: number}} options */
  write(from, { at }) {
    if (at + from.length > this.size) this.truncate(at + from.length);
    this.room.set(from, at);
    return from.length;
  }
  /** @param {number} size */
  truncate(size) {
    if (size > this.room.length) {
      const room = new Uint8Array(Math.max(size, 2 * this.room.length));
      room.set(this.bytes);
      this.room = room;
    }
    this.room.fill(0, Math.min(size, this.size), Math.max(size, this.size));
    this.size = size;
  }
  getSize() {
    return this.size;
  }
  flush() {}
}

/** @param {Uint8Array} bytes */
function checksum(bytes) {
  let sum = 17;
  for (const byte of bytes) sum = (Math.imul(sum, 31) + byte) | 0;
  return sum;
}

/** @param {number} kind @param {string} name @param {number} number @param {Uint8Array} data */
function record(kind, name, number, data) {
  const letters = new TextEncoder().encode(name);
  const bytes = new Uint8Array(RecordHead + letters.length + data.length + RecordTail);
  const numbers = new DataView(bytes.buffer);
  [kind, letters.length, number, data.length].forEach((each, at) =>
    numbers.setUint32(4 * at, each, true),
  );
  bytes.set(letters, RecordHead);
  bytes.set(data, RecordHead + letters.length);
  const end = bytes.length - RecordTail;
  numbers.setInt32(end, checksum(bytes.subarray(0, end)), true);
  return bytes;
}

/** @param {number} generation */
function header(generation) {
  const bytes = new Uint8Array(HeaderSize);
  const numbers = new DataView(bytes.buffer);
  numbers.setUint32(0, Magic, true);
  numbers.setUint32(4, generation, true);
  numbers.setInt32(8, checksum(bytes.subarray(0, 8)), true);
  return bytes;
}

/** @param {Place} place @returns {Uint8Array} */
function allOf(place) {
  const bytes = new Uint8Array(place.getSize());
  return bytes.subarray(0, place.read(bytes, { at: 0 }));
}

/** The generation of a log; 0 when it is none. @param {Uint8Array} bytes */
function generationOf(bytes) {
  if (bytes.length < HeaderSize) return 0;
  const numbers = new DataView(bytes.buffer, bytes.byteOffset);
  const whole = numbers.getInt32(8, true) === checksum(bytes.subarray(0, 8));
  return whole && numbers.getUint32(0, true) === Magic ? numbers.getUint32(4, true) : 0;
}

export class OwnFiles {
  /** @param {Place[]} logs two of them */
  constructor(logs) {
    this.logs = logs;
    this.files = /** @type {Map<string, MemoryPlace>} */ (new Map());
    const contents = logs.map(allOf);
    const generations = contents.map(generationOf);
    this.current = generations[1] > generations[0] ? 1 : 0;
    this.generation = generations[this.current];
    this.end = this.generation === 0 ? 0 : this.replay(contents[this.current]);
    if (this.generation === 0) {
      this.rewrite(this.files);
    } else {
      // What was cut short when it was written goes.
      OwnFiles.tried(() => (logs[this.current].truncate(this.end), 0));
    }
  }

  /** Does what a log says; gives where its last whole record ends. @param {Uint8Array} log */
  replay(log) {
    const numbers = new DataView(log.buffer, log.byteOffset, log.length);
    let at = HeaderSize;
    while (at + RecordHead + RecordTail <= log.length) {
      const [kind, nameLength, number, length] = [0, 4, 8, 12].map((each) =>
        numbers.getUint32(at + each, true),
      );
      const end = at + RecordHead + nameLength + length;
      if (nameLength > LongestName || end + RecordTail > log.length) break;
      if (numbers.getInt32(end, true) !== checksum(log.subarray(at, end))) break;
      const name = new TextDecoder().decode(log.subarray(at + RecordHead, end - length));
      this.perform(kind, name, number, log.subarray(end - length, end));
      at = end + RecordTail;
    }
    return at;
  }

  /** @param {number} kind @param {string} name @param {number} number @param {Uint8Array} data */
  perform(kind, name, number, data) {
    const file = this.files.get(name);
    if (kind === Deed.Create) this.files.set(name, new MemoryPlace());
    if (kind === Deed.Remove) this.files.delete(name);
    if (file === undefined || number + data.length > LargestFile) return;
    if (kind === Deed.Write) file.write(data, { at: number });
    if (kind === Deed.Truncate) file.truncate(number);
    if (kind === Deed.Rename) {
      this.files.delete(name);
      this.files.set(new TextDecoder().decode(data), file);
    }
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

  /**
   * Writes a deed down, and does it when that went well; else nothing has changed, and it is -1.
   * @param {number} kind
   * @param {string} name
   * @param {number} [number]
   * @param {Uint8Array} [data]
   */
  note(kind, name, number = 0, data = Nothing) {
    const log = this.logs[this.current];
    const bytes = record(kind, name, number, data);
    const done = OwnFiles.tried(() =>
      log.write(bytes, { at: this.end }) === bytes.length ? 0 : -1,
    );
    if (done < 0) {
      OwnFiles.tried(() => (log.truncate(this.end), 0));
      return -1;
    }
    this.end += bytes.length;
    this.perform(kind, name, number, data);
    this.shorten();
    return 0;
  }

  /** Writes the log anew when most of it is of no use any more. */
  shorten() {
    const live = [...this.files.values()].reduce((sum, file) => sum + file.size, 0);
    if (this.end > 2 * live + Slack) this.rewrite(this.files);
  }

  /**
   * Makes these the learner's files, all or none of them; gives -1 where the store is full or gone.
   * @param {Map<string, {bytes: Uint8Array}>} files
   */
  rewrite(files) {
    const other = 1 - this.current;
    const log = this.logs[other];
    const fresh = /** @type {Map<string, MemoryPlace>} */ (new Map());
    const done = OwnFiles.tried(() => {
      log.truncate(0);
      let end = HeaderSize;
      for (const [name, { bytes }] of files) {
        for (const each of [
          record(Deed.Create, name, 0, Nothing),
          record(Deed.Write, name, 0, bytes),
        ]) {
          if (log.write(each, { at: end }) !== each.length) return -1;
          end += each.length;
        }
        fresh.set(name, new MemoryPlace(bytes));
      }
      log.flush();
      if (log.write(header(this.generation + 1), { at: 0 }) !== HeaderSize) return -1;
      log.flush();
      return end;
    });
    if (done < 0) return -1;
    OwnFiles.tried(() => (this.logs[this.current].truncate(0), 0));
    this.generation += 1;
    this.current = other;
    this.end = done;
    this.files = fresh;
    return 0;
  }

  // -- What the core calls, each with a name, a number and bytes; less than 0 is a failure.

  /** @param {string} name */
  size(name) {
    return this.files.get(name)?.size ?? -1;
  }

  /** @param {string} name */
  create(name) {
    if (new TextEncoder().encode(name).length > LongestName) return -1;
    return this.note(Deed.Create, name);
  }

  /** @param {string} name @param {number} offset @param {Uint8Array} into */
  read(name, offset, into) {
    const file = this.files.get(name);
    return file === undefined ? -1 : file.read(into, { at: offset });
  }

  /** @param {string} name @param {number} offset @param {Uint8Array} from */
  write(name, offset, from) {
    return this.change(Deed.Write, name, offset, from);
  }

  /** @param {string} name @param {number} size */
  truncate(name, size) {
    return this.change(Deed.Truncate, name, size);
  }

  /** @param {string} from @param {number} _ @param {Uint8Array} to */
  rename(from, _, to) {
    return this.change(Deed.Rename, from, 0, to);
  }

  /** @param {string} name */
  remove(name) {
    return this.files.has(name) ? this.note(Deed.Remove, name) : 0;
  }

  /** @param {string} name */
  sync(name) {
    if (!this.files.has(name)) return -1;
    return OwnFiles.tried(() => (this.logs[this.current].flush(), 0));
  }

  /** Does what only a file that is there can have done to it. @param {number} deed @param {string} name @param {number} number @param {Uint8Array} [data] */
  change(deed, name, number, data = Nothing) {
    const fits = this.files.has(name) && number + data.length <= LargestFile;
    return fits ? this.note(deed, name, number, data) : -1;
  }

  list() {
    return [...this.files.keys()];
  }

  /** All files as they are now. */
  copy() {
    return new Map([...this.files].map(([name, { bytes }]) => [name, bytes.slice()]));
  }
}

/**
 * Opens a file of the private store; the worker of a page that is just going may still have it.
 * @param {any} file
 * @returns {Promise<Place>}
 */
export async function openPlace(file) {
  for (let left = OpenTries; ; --left) {
    try {
      return await file.createSyncAccessHandle();
    } catch (fault) {
      if (left === 0) throw fault;
      await new Promise((resolve) => setTimeout(resolve, OpenPauseMs));
    }
  }
}

const folderOfLearner = async () =>
  (await navigator.storage.getDirectory()).getDirectoryHandle('learner', { create: true });

/**
 * Keeps files that are to be the learner's when the page is loaded anew: all of them or none.
 * @param {Map<string, Uint8Array>} files
 */
export async function keepIncoming(files) {
  const logs = [new MemoryPlace(), new MemoryPlace()];
  const own = new OwnFiles(logs);
  own.rewrite(new Map([...files].map(([name, bytes]) => [name, { bytes }])));
  const file = await (await folderOfLearner()).getFileHandle(Incoming, { create: true });
  const writable = await file.createWritable();
  await writable.write(logs[own.current].bytes);
  await writable.close();
}

/** Takes over what was kept so. @param {OwnFiles} own @param {FileSystemDirectoryHandle} folder */
async function takeIncoming(own, folder) {
  const file = await folder.getFileHandle(Incoming).catch(() => undefined);
  if (file === undefined) return;
  const log = new MemoryPlace(new Uint8Array(await (await file.getFile()).arrayBuffer()));
  const came = generationOf(log.bytes) > 0;
  if (came && own.rewrite(new OwnFiles([log, new MemoryPlace()]).files) < 0) return;
  await folder.removeEntry(Incoming);
}

/**
 * Opens the learner's files; without a store that keeps them they live as long as the page.
 * @returns {Promise<{files: OwnFiles, kept: boolean}>}
 */
export async function openOwnFiles() {
  try {
    const folder = await folderOfLearner();
    const logs = await Promise.all(
      LogNames.map(async (name) => openPlace(await folder.getFileHandle(name, { create: true }))),
    );
    const files = new OwnFiles(logs);
    await takeIncoming(files, folder);
    return { files, kept: true };
  } catch {
    return { files: new OwnFiles([new MemoryPlace(), new MemoryPlace()]), kept: false };
  }
}
