// The browser's own English voices, a choice beside the program's where it has some that need no network.
import { byId, onClick } from './elements.js';

const Kept = 'talvora-voice';
const NaturalSpeed = 175; // words a minute
const Sample = 'This is my voice.';

/** Nothing in a browser that keeps nothing. */
function storage() {
  try {
    return localStorage;
  } catch {
    return undefined;
  }
}

export class Voices {
  constructor() {
    this.synthesis = globalThis.speechSynthesis;
    this.dialog = /** @type {HTMLDialogElement} */ (byId('voices'));
    this.choice = /** @type {HTMLSelectElement} */ (byId('voice'));
    /** What the learner has chosen: the address of a voice; empty is the program's own. */
    this.wanted = storage()?.getItem(Kept) ?? '';
    onClick('voicesOpen', () => this.open());
    onClick('voicesClose', () => this.dialog.close());
    this.choice.addEventListener('change', () => this.choose(this.choice.value));
  }

  list() {
    const isOne = (/** @type {SpeechSynthesisVoice} */ { lang, localService }) =>
      localService && /^en\b/i.test(lang);
    return (this.synthesis?.getVoices() ?? []).filter(isOne);
  }

  open() {
    const voices = this.list().map(({ name, voiceURI }) => new Option(name, voiceURI));
    this.choice.replaceChildren(new Option('Giọng của Talvora', ''), ...voices);
    this.choice.value = this.chosen()?.voiceURI ?? '';
    this.dialog.showModal();
  }

  /** @param {string} address */
  choose(address) {
    this.wanted = address;
    this.synthesis.cancel();
    void this.say(Sample, NaturalSpeed);
    storage()?.setItem(Kept, address);
  }

  /** The voice of the browser that speaks; none where the program's own does. */
  chosen() {
    return this.wanted === ''
      ? undefined
      : this.list().find(({ voiceURI }) => voiceURI === this.wanted);
  }

  /** Says a text with the chosen voice; resolved when it is over. @param {string} text @param {number} speed */
  async say(text, speed) {
    const utterance = new SpeechSynthesisUtterance(text);
    utterance.voice = this.chosen() ?? null;
    utterance.lang = utterance.voice?.lang ?? 'en';
    utterance.rate = Math.min(Math.max(speed / NaturalSpeed, 0.1), 10);
    if (utterance.voice === null) return;
    await new Promise((resolve) => {
      utterance.onend = utterance.onerror = resolve;
      this.synthesis.speak(utterance);
    });
  }

  hush() {
    if (this.chosen() !== undefined) this.synthesis.cancel();
  }
}
