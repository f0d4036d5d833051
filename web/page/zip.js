// Archives of the zip form, in memory.

const LocalMagic = 0x04034b50;
const EntryMagic = 0x02014b50;
const EndMagic = 0x06054b50;
const LocalSize = 30;
const EntrySize = 46;
const EndSize = 22;
const Utf8Names = 0x800;
const Deflated = 8;
const Earliest = 0x21; // 1 January 1980

const CrcSteps = Uint32Array.from({ length: 256 }, (_, byte) => {
  for (let bit = 0; bit < 8; ++bit) byte = byte & 1 ? 0xedb88320 ^ (byte >>> 1) : byte >>> 1;
  return byte;
});

/** @param {Uint8Array} bytes */
function crcOf(bytes) {
  let crc = -1;
  for (const byte of bytes) crc = CrcSteps[(crc ^ byte) & 0xff] ^ (crc >>> 8);
  return ~crc >>> 0;
}

/** Numbers of two bytes, or of four where it says so, one behind the other. @param {[number, number][]} fields */
function numbers(...fields) {
  return Uint8Array.from(
    fields.flatMap(([size, value]) =>
      Array.from({ length: size }, (_, byte) => (value >>> (8 * byte)) & 0xff),
    ),
  );
}

/** The files as an archive, as they are. @param {Map<string, Uint8Array>} files */
export function zipOf(files) {
  /** @type {Uint8Array[]} */
  const contents = [];
  /** @type {Uint8Array[]} */
  const entries = [];
  let at = 0;
  for (const [name, bytes] of files) {
    const letters = new TextEncoder().encode(name);
    /** @type {[number, number][]} */
    const its = [
      ...[20, Utf8Names, 0, 0, Earliest].map((each) => /** @type {[number, number]} */ ([2, each])),
      ...[crcOf(bytes), bytes.length, bytes.length].map(
        (each) => /** @type {[number, number]} */ ([4, each]),
      ),
      [2, letters.length],
      [2, 0],
    ];
    contents.push(numbers([4, LocalMagic], ...its), letters, bytes);
    entries.push(
      numbers([4, EntryMagic], [2, 20], ...its, [4, 0], [2, 0], [4, 0], [4, at]),
      letters,
    );
    at += LocalSize + letters.length + bytes.length;
  }
  const size = entries.reduce((sum, each) => sum + each.length, 0);
  const count = files.size;
  const end = numbers([4, EndMagic], [4, 0], [2, count], [2, count], [4, size], [4, at], [2, 0]);
  return new Blob(/** @type {BlobPart[]} */ ([...contents, ...entries, end]));
}

/** @param {Uint8Array} packed @param {number} size that it must have unpacked */
async function inflated(packed, size) {
  const plain = new Uint8Array(size);
  const stream = new Blob([/** @type {BlobPart} */ (packed)]).stream();
  const reader = stream.pipeThrough(new DecompressionStream('deflate-raw')).getReader();
  let at = 0;
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    plain.set(part.value, at);
    at += part.value.length;
  }
  if (at !== size) throw new RangeError();
  return plain;
}

/**
 * The files of an archive whose names are wanted. Throws where it is damaged, or where they are larger
 * than `most` bytes together.
 * @param {Uint8Array} archive
 * @param {(name: string) => boolean} isWanted
 * @param {number} most
 */
export async function filesOf(archive, isWanted, most) {
  const view = new DataView(archive.buffer, archive.byteOffset, archive.length);
  let end = archive.length - EndSize;
  while (end >= 0 && view.getUint32(end, true) !== EndMagic) --end;
  /** @type {Map<string, Uint8Array>} */
  const files = new Map();
  let at = view.getUint32(end + 16, true);
  for (let left = view.getUint16(end + 10, true); left > 0; --left) {
    if (view.getUint32(at, true) !== EntryMagic) throw new RangeError();
    const [method] = [view.getUint16(at + 10, true)];
    const [crc, packed, size] = [16, 20, 24].map((each) => view.getUint32(at + each, true));
    const [nameSize, extraSize, noteSize] = [28, 30, 32].map((each) =>
      view.getUint16(at + each, true),
    );
    const local = view.getUint32(at + 42, true);
    const name = new TextDecoder().decode(archive.subarray(at + EntrySize).subarray(0, nameSize));
    at += EntrySize + nameSize + extraSize + noteSize;
    if (!isWanted(name)) continue;
    most -= size;
    if (most < 0) throw new RangeError();
    const ahead = view.getUint16(local + 26, true) + view.getUint16(local + 28, true);
    const stored = archive.subarray(local + LocalSize + ahead).subarray(0, packed);
    const bytes = method === Deflated ? await inflated(stored, size) : stored;
    if (bytes.length !== size || crcOf(bytes) !== crc) throw new RangeError();
    files.set(name, bytes);
  }
  return files;
}
