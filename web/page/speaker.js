// The worker that speaks English: texts come in, samples go out, as soon as there are some.
import createVoice from './voice.js';
import { Sounds } from './ring.js';
import { contentOf } from './store.js';

const CharactersPerWord = 6;
const SlowestSpeed = 30;
const FastestSpeed = 500;

/** Resolved with what says a text, once the voices are there. @type {Promise<any> | undefined} */
let ready;
/** What is being said, one text after another. */
let turnOfSpeech = Promise.resolve();
/** The text that is being said. */
let current = 0;
/** @type {() => number} */
let wanted = () => current;

/** @param {{sounds: ArrayBufferLike, entries: import('./pack.js').Entry[]}} start */
async function begin({ sounds, entries }) {
  const state = new Int32Array(sounds);
  // Where it is not seen here what is wanted, the page drops what is not.
  if (globalThis.crossOriginIsolated) wanted = () => Atomics.load(state, Sounds.SpeechTurn);
  /** @param {string} name */
  const fetched = async (name) => {
    const entry = entries.find((each) => each.name === name);
    return entry === undefined ? new Uint8Array() : contentOf(entry.file);
  };
  const voice = await createVoice({
    /** @param {Int16Array} samples @param {number} rate */
    part: (samples, rate) => {
      if (wanted() !== current) return 0;
      postMessage({ do: 'part', turn: current, samples, rate }, { transfer: [samples.buffer] });
      return 1;
    },
  });
  const corrections = new TextDecoder().decode(await fetched('pronunciation.txt'));
  voice.ccall('talvoraTeach', null, ['string'], [corrections]);
  return async (/** @type {any} */ { text, voice: number, speed }) => {
    const file = `/${voice.ccall('talvoraVoiceName', 'string', ['number'], [number])}.flitevox`;
    if (!voice.FS.analyzePath(file).exists) voice.FS.writeFile(file, await fetched(file.slice(1)));
    voice.ccall('talvoraSay', 'number', ['string', 'number', 'number'], [text, number, speed]);
  };
}

/** @param {{text: string, voice: number, speed: number, turn: number}} utterance */
async function say(utterance) {
  current = utterance.turn;
  if (wanted() !== current) return;
  const speed = Math.min(Math.max(utterance.speed, SlowestSpeed), FastestSpeed);
  try {
    const speak = await ready;
    await speak({ ...utterance, speed });
    postMessage({ do: 'spoken', turn: utterance.turn, silentMs: 0 });
  } catch {
    // Without the voice it takes the time that speaking would take.
    const silentMs = (utterance.text.length * 60_000) / (CharactersPerWord * speed);
    postMessage({ do: 'spoken', turn: utterance.turn, silentMs });
  }
}

self.onmessage = ({ data }) => {
  if (data.do === 'begin') {
    ready = begin(data);
    // Told with the text that is to be said.
    ready.catch(() => undefined);
  } else {
    turnOfSpeech = turnOfSpeech.then(() => say(data));
  }
};
