// What is heard: speech, which a worker makes, and recordings. What still sounds is answered by the
// clock: a device that is not there, or may not be used before the learner has touched the page,
// changes nothing but that nothing is heard.
import { Sounds, endSound, noteSound } from './ring.js';
import { replyOf } from './store.js';

const RecordingRate = 16_000;
const AheadMs = 20; // that a picture has, of the sound that comes with it

export class Sound {
  /**
   * @param {ArrayBufferLike} sounds how much is being spoken, and whether a recording plays
   * @param {import('./pack.js').Entry[]} entries of the pack
   * @param {import('./voices.js').Voices} voices of the browser
   * @param {((place: number, turn: number) => void) | undefined} onEnd called where that is not seen by
   *   all, when something has ended
   */
  constructor(sounds, entries, voices, onEnd) {
    this.voices = voices;
    this.sounds = sounds;
    this.onEnd = onEnd;
    this.state = new Int32Array(sounds);
    this.entries = entries;
    this.device = /** @type {AudioContext | undefined} */ (undefined);
    /** When what was given to the device is over, on its clock in seconds. */
    this.deviceUntil = 0;
    /** The same on the page's clock, in milliseconds. */
    this.until = 0;
    this.speech = /** @type {Set<AudioBufferSourceNode>} */ (new Set());
    this.recordingSource = /** @type {AudioBufferSourceNode | undefined} */ (undefined);
    /** @type {Promise<AudioBuffer | undefined>} */
    this.recording = Promise.resolve(undefined);
    this.speaker = /** @type {Worker | undefined} */ (undefined);
    for (const kind of ['pointerup', 'keydown'])
      addEventListener(kind, () => this.openDevice(), { capture: true });
  }

  /** No sound before the learner has touched the page. */
  openDevice() {
    this.device ??= new AudioContext();
    if (this.device.state === 'suspended') void this.device.resume().catch(() => undefined);
  }

  /** Gets the voices ready. */
  prepare() {
    if (this.speaker !== undefined) return;
    this.speaker = new Worker(new URL('speaker.js', import.meta.url), { type: 'module' });
    this.speaker.onmessage = ({ data }) => {
      if (data.do === 'part') this.playPart(data);
      else this.endText(data);
    };
    this.speaker.postMessage({ do: 'begin', sounds: this.sounds, entries: this.entries });
  }

  /** @param {any} message */
  take(message) {
    if (this.onEnd !== undefined) noteSound(this.state, message);
    if (message.do === 'speak') this.speak(message);
    if (message.do === 'hush') this.hush();
    if (message.do === 'openWave') this.recording = this.open(message.file);
    if (message.do === 'playWave') void this.play(message);
    if (message.do === 'stopWave' || message.do === 'closeWave') this.stopRecording();
  }

  /** @param {number} place @param {number} turn */
  end(place, turn) {
    endSound(this.state, place, turn);
    this.onEnd?.(place, turn);
  }

  // -- Speech.

  /** @param {{text: string, speed: number, turn: number}} message */
  speak(message) {
    if (this.voices.chosen() !== undefined) {
      const over = () => this.end(Sounds.Speaking, message.turn);
      void this.voices.say(message.text, message.speed).then(over);
    } else {
      this.prepare();
      // What has come up with it is to be painted first: making the voice takes a processor.
      setTimeout(() => this.speaker?.postMessage(message), AheadMs);
    }
  }

  /** @param {number} turn of a text that is spoken */
  speaks(turn) {
    return Atomics.load(this.state, Sounds.SpeechTurn) === turn;
  }

  /** @param {{turn: number, samples: Int16Array, rate: number}} part */
  playPart({ turn, samples, rate }) {
    if (!this.speaks(turn) || samples.length === 0) return;
    const seconds = samples.length / rate;
    this.until = Math.max(this.until, performance.now()) + 1000 * seconds;
    if (this.device?.state !== 'running') return;
    const buffer = this.device.createBuffer(1, samples.length, rate);
    buffer.copyToChannel(
      Float32Array.from(samples, (sample) => sample / 0x8000),
      0,
    );
    this.deviceUntil = Math.max(this.deviceUntil, this.device.currentTime);
    const source = this.start(buffer, this.deviceUntil);
    this.deviceUntil += seconds;
    this.speech.add(source);
    source.onended = () => this.speech.delete(source);
  }

  /** @param {{turn: number, silentMs: number}} end */
  endText({ turn, silentMs }) {
    if (!this.speaks(turn)) return;
    this.until = Math.max(this.until, performance.now()) + silentMs;
    setTimeout(() => this.end(Sounds.Speaking, turn), this.until - performance.now());
  }

  hush() {
    this.voices.hush();
    for (const source of this.speech) source.stop();
    this.speech.clear();
    this.deviceUntil = 0;
    this.until = 0;
  }

  // -- Recordings.

  /** @param {string} path ending in the recording's name */
  async open(path) {
    const name = `sound/${/** @type {string} */ (path.split('/').pop())}`;
    const entry = this.entries.find((each) => each.name === name);
    if (entry === undefined) return undefined;
    try {
      const bytes = await (await replyOf(entry.file)).arrayBuffer();
      return await new OfflineAudioContext(1, 1, RecordingRate).decodeAudioData(bytes);
    } catch {
      return undefined;
    }
  }

  /** @param {{from: number, to: number, turn: number}} stretch in milliseconds */
  async play({ from, to, turn }) {
    const buffer = await this.recording;
    if (Atomics.load(this.state, Sounds.WaveTurn) !== turn) return;
    this.stopRecording();
    if (buffer !== undefined && this.device?.state === 'running')
      this.recordingSource = this.start(buffer, 0, from / 1000, (to - from) / 1000);
    setTimeout(() => this.end(Sounds.Playing, turn), to - from);
  }

  stopRecording() {
    this.recordingSource?.stop();
    this.recordingSource = undefined;
  }

  /** @param {AudioBuffer} buffer @param {number} at @param {number} [from] @param {number} [seconds] */
  start(buffer, at, from = 0, seconds = buffer.duration) {
    const device = /** @type {AudioContext} */ (this.device);
    const source = device.createBufferSource();
    source.buffer = buffer;
    source.connect(device.destination);
    source.start(at, from, seconds);
    return source;
  }
}
