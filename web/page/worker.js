// The worker in which the program runs.
import createTalvora from './talvora.js';
import { openOwnFiles } from './own.js';
import { readerOf } from './pack.js';
import { Sounds, take, wait } from './ring.js';

/** @type {any} */
let program = null;

/**
 * Counts what sounds, at once, so that the program hears of it before the page has it.
 * @param {Int32Array} sounds
 * @param {any} message
 */
function noteSound(sounds, message) {
  switch (message.do) {
    case 'speak':
      Atomics.add(sounds, Sounds.Speaking, 1);
      message.turn = Atomics.load(sounds, Sounds.SpeechTurn);
      break;
    case 'hush':
      Atomics.add(sounds, Sounds.SpeechTurn, 1);
      Atomics.store(sounds, Sounds.Speaking, 0);
      break;
    case 'playWave':
      message.turn = Atomics.add(sounds, Sounds.WaveTurn, 1) + 1;
      Atomics.store(sounds, Sounds.Playing, 1);
      break;
    case 'stopWave':
    case 'closeWave':
      Atomics.add(sounds, Sounds.WaveTurn, 1);
      Atomics.store(sounds, Sounds.Playing, 0);
      break;
  }
}

/** @param {{ring: SharedArrayBuffer, sounds: SharedArrayBuffer, pack: import('./pack.js').Pack, width: number, height: number}} start */
async function begin(start) {
  const ring = new Int32Array(start.ring);
  const sounds = new Int32Array(start.sounds);
  const pack = readerOf(start.pack, (waiting) => postMessage({ do: 'waiting', waiting }));
  const [own, measures] = await Promise.all([
    openOwnFiles(),
    fetch('faces.bin').then((reply) => reply.arrayBuffer()),
  ]);
  if (!own.kept) postMessage({ do: 'notKept' });
  const host = {
    /** @param {number} ms */
    wait: (ms) => wait(ring, ms),
    /** @param {Int32Array} into @param {number} at */
    take: (into, at) => take(ring, into, at),
    /** @param {string} json */
    tell: (json) => {
      const message = JSON.parse(json);
      noteSound(sounds, message);
      postMessage(message);
    },
    /** @param {number} what */
    sounds: (what) => Atomics.load(sounds, what),
    pack,
    own: own.files,
  };
  program = await createTalvora({ host });
  const bytes = new Uint8Array(measures);
  const place = program._malloc(bytes.length);
  program.HEAPU8.set(bytes, place);
  postMessage({ do: 'ready' });
  program._talvoraStart(start.width, start.height, place, bytes.length);
  program._free(place);
}

self.onmessage = ({ data }) => {
  if (data.do === 'begin') {
    begin(data).catch((fault) => postMessage({ do: 'failed', text: String(fault) }));
  } else if (program !== null) {
    program._talvoraPump();
  }
};
