// The worker in which the program runs.
import createTalvora from './talvora.js';
import * as alone from './alone.js';
import { openOwnFiles } from './own.js';
import { readerOf } from './pack.js';
import { Sounds, endSound, noteSound, take, wait } from './ring.js';

/** @type {any} */
let program = null;
let runs = false;
/** @type {Int32Array} */
let sounds = new Int32Array(Sounds.All);

/** @typedef {{ring?: SharedArrayBuffer, port?: MessagePort, sounds: ArrayBufferLike, pack: import('./pack.js').Pack, width: number, height: number}} Start */

/** How the core waits, and reads what may have to be waited for. @param {Start} start */
function waysOf({ ring, port, pack }) {
  const waits = (/** @type {boolean} */ waiting) => postMessage({ do: 'waiting', waiting });
  if (ring === undefined)
    return {
      wait: alone.wait,
      take: alone.take,
      pack: alone.readerOf(pack.entries, /** @type {MessagePort} */ (port), waits),
    };
  const events = new Int32Array(ring);
  return {
    /** @param {number} ms */
    wait: (ms) => wait(events, ms),
    /** @param {Int32Array} into @param {number} at */
    take: (into, at) => take(events, into, at),
    pack: readerOf(pack, waits),
  };
}

/** @param {Start} start */
async function begin(start) {
  sounds = new Int32Array(start.sounds);
  const host = {
    ...waysOf(start),
    /** @param {string} json */
    tell: (json) => {
      const message = JSON.parse(json);
      noteSound(sounds, message);
      if (message.do === 'kept') message.files = host.own?.copy();
      postMessage(message);
    },
    speaks: () => Atomics.load(sounds, Sounds.Speaking),
    plays: () => Atomics.load(sounds, Sounds.Playing),
    /** @type {import('./own.js').OwnFiles | undefined} */
    own: undefined,
  };
  const suspended = start.ring === undefined ? { instantiateWasm: alone.instantiate } : {};
  const [own, measures, made] = await Promise.all([
    openOwnFiles(),
    fetch('faces.bin').then((reply) => reply.arrayBuffer()),
    createTalvora({ host, ...suspended }),
  ]);
  if (!own.kept) postMessage({ do: 'notKept' });
  host.own = own.files;
  program = made;
  const bytes = new Uint8Array(measures);
  const place = program._malloc(bytes.length);
  program.HEAPU8.set(bytes, place);
  postMessage({ do: 'ready' });
  runs = true;
  await program._talvoraStart(start.width, start.height, place, bytes.length);
  program._free(place);
  runs = false;
}

/** Delivers what has come; a program that is suspended takes it itself. */
async function pump() {
  if (program === null || runs) return;
  runs = true;
  await program._talvoraPump();
  runs = false;
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
