// The worker in which the program runs.
import createTalvora from './talvora.js';
import * as alone from './alone.js';
import { openOwnFiles } from './own.js';
import { comingFrom, openKept, orderOf, readerOf } from './pack.js';
import { Gone, Sounds, endSound, noteSound, take, wait } from './ring.js';

/** What the core asks for is put in when the program begins. @type {any} */
const host = {};
// Both are on their way while the page gets ready.
const making = createTalvora({
  host,
  ...(globalThis.crossOriginIsolated ? {} : { instantiateWasm: alone.instantiate }),
});
const measuring = fetch('faces.bin').then((reply) => reply.arrayBuffer());

let program = /** @type {any} */ (null);
let runs = false;
/** @type {Int32Array} */
let sounds = new Int32Array(Sounds.All);

/** @typedef {{ring?: SharedArrayBuffer, port: MessagePort, sounds: ArrayBufferLike, entries: import('./pack.js').Entry[], width: number, height: number}} Start */

/** How the core waits, and reads what may have to be waited for. @param {Start} start */
async function waysOf({ ring, port, entries }) {
  const waits = (/** @type {boolean} */ waiting) => postMessage({ do: 'waiting', waiting });
  const kept = await openKept(entries);
  const order = orderOf(entries, kept);
  port.postMessage(order);
  const events = ring && new Int32Array(ring);
  const coming = events ? comingFrom(order, waits) : alone.comingFrom(port, waits);
  return {
    wait: events ? (/** @type {number} */ ms) => wait(events, ms) : alone.wait,
    /** @param {Int32Array} into @param {number} at */
    take: (into, at) => (events ? take(events, into, at) : alone.take(into, at)),
    pack: readerOf(entries, kept, coming),
  };
}

/** @param {Start} start */
async function begin(start) {
  sounds = new Int32Array(start.sounds);
  const [ways, own, measures, made] = await Promise.all([
    waysOf(start),
    openOwnFiles(),
    measuring,
    making,
  ]);
  Object.assign(host, ways, {
    /** @param {string} json */
    tell: (json) => {
      const message = JSON.parse(json);
      noteSound(sounds, message);
      if (message.do === 'kept') message.files = own.files.copy();
      postMessage(message);
    },
    speaks: () => Atomics.load(sounds, Sounds.Speaking),
    plays: () => Atomics.load(sounds, Sounds.Playing),
    own: own.files,
  });
  if (!own.kept) postMessage({ do: 'notKept' });
  program = made;
  const bytes = new Uint8Array(measures);
  const place = program._malloc(bytes.length);
  program.HEAPU8.set(bytes, place);
  await run(() => program._talvoraStart(start.width, start.height, place, bytes.length));
  program._free(place);
}

/** Runs the core until it has nothing to do, or nobody to do it for. @param {() => unknown} deed */
async function run(deed) {
  runs = true;
  try {
    await deed();
  } catch (fault) {
    if (fault !== Gone) throw fault;
  }
  runs = false;
}

/** Delivers what has come; a program that is suspended takes it itself. */
async function pump() {
  if (program !== null && !runs) await run(() => program._talvoraPump());
}

self.onmessage = ({ data }) => {
  if (data.do === 'begin') {
    begin(data).catch((fault) => postMessage({ do: 'failed', text: String(fault) }));
    return;
  }
  if (data.do === 'sounded') endSound(sounds, data.place, data.turn);
  if (data.event !== undefined) alone.tell(data.event);
  void pump();
};
