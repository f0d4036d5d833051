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

/** Numbers of two bytes where the shape has an H, and of four elsewhere. @param {string} shape @param {number[]} values */
const numbers = (shape, ...values) =>
  Uint8Array.from(
    values.flatMap((value, at) =>
      (shape[at] === 'H' ? [0, 8] : [0, 8, 16, 24]).map((bits) => (value >>> bits) & 0xff),
    ),
  );

/** The files as an archive, as they are. @param {Map<string, Uint8Array>} files */
export function zipOf(files) {
  const contents = /** @type {Uint8Array[]} */ ([]);
  const entries = /** @type {Uint8Array[]} */ ([]);
  let at = 0;
  for (const [name, bytes] of files) {
    const letters = new TextEncoder().encode(name);
    const { length } = bytes;
    const its = [Utf8Names, 0, 0, Earliest, crcOf(bytes), length, length, letters.length, 0];
    const local = numbers('IHHHHHIIIHH', LocalMagic, 20, ...its);
    contents.push(local, letters, bytes);
    entries.push(numbers('IHHHHHHIIIHHHHHII', EntryMagic, 20, 20, ...its, 0, 0, 0, 0, at), letters);
    at += local.length + letters.length + length;
  }
  const size = entries.reduce((sum, each) => sum + each.length, 0);
  const end = numbers('IHHHHIIH', EndMagic, 0, 0, files.size, files.size, size, at, 0);
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
  const files = /** @type {Map<string, Uint8Array>} */ (new Map());
  let at = view.getUint32(end + 16, true);
  for (let left = view.getUint16(end + 10, true); left > 0; --left) {
    if (view.getUint32(at, true) !== EntryMagic) throw new RangeError();
    const method = view.getUint16(at + 10, true);
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
