// English speech by the browser's own voices, and the time of it where there is none.
import { Sounds } from './ring.js';

const NaturalSpeed = 175; // words a minute
const CharactersPerWord = 6;

export class Sound {
  /** @param {Int32Array} state how much is being spoken, and whether a recording plays */
  constructor(state) {
    this.state = state;
    this.touched = false;
    /** @type {ReturnType<typeof setTimeout>[]} */
    this.silences = [];
    this.silentUntil = 0;
    for (const kind of ['pointerdown', 'keydown'])
      addEventListener(kind, () => (this.touched = true), { once: true });
  }

  /** @param {any} message */
  take(message) {
    if (message.do === 'speak') this.speak(message);
    if (message.do === 'hush') this.hush();
    if (message.do === 'playWave') this.keepSilent(message);
  }

  /** @returns {SpeechSynthesisVoice | undefined} An English voice that needs no network. */
  static voice() {
    return globalThis.speechSynthesis
      ?.getVoices()
      .find((voice) => voice.localService && voice.lang.startsWith('en'));
  }

  /** @param {{text: string, speed: number, turn: number}} message */
  speak({ text, speed, turn }) {
    const done = () => {
      const current = Atomics.load(this.state, Sounds.SpeechTurn) === turn;
      if (current) Atomics.sub(this.state, Sounds.Speaking, 1);
    };
    const voice = this.touched ? Sound.voice() : undefined;
    if (voice === undefined) {
      const now = performance.now();
      const ms = (text.length * 60_000) / (CharactersPerWord * Math.max(speed, 1));
      this.silentUntil = Math.max(now, this.silentUntil) + ms;
      this.silences.push(setTimeout(done, this.silentUntil - now));
      return;
    }
    const utterance = new SpeechSynthesisUtterance(text);
    utterance.voice = voice;
    utterance.rate = speed / NaturalSpeed;
    utterance.onend = done;
    utterance.onerror = done;
    speechSynthesis.speak(utterance);
  }

  hush() {
    for (const silence of this.silences.splice(0)) clearTimeout(silence);
    this.silentUntil = 0;
    globalThis.speechSynthesis?.cancel();
  }

  /** @param {{from: number, to: number, turn: number}} message */
  keepSilent({ from, to, turn }) {
    setTimeout(() => {
      const current = Atomics.load(this.state, Sounds.WaveTurn) === turn;
      if (current) Atomics.store(this.state, Sounds.Playing, 0);
    }, to - from);
  }
}
