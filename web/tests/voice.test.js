// The voices as WebAssembly say what flite says on this machine. VOICE in the environment is the
// module, SITE the folder with the page.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { before, test } from 'node:test';
import { gunzipSync } from 'node:zlib';

const Site = process.env.SITE ?? '';
const Sentence = 'My sister is washing the dishes in the kitchen.';
const NaturalSpeed = 175;
/** What brings the voice to the level of the recordings. */
const Gain = 0.52;
/** In dB; the breath in a voice is random, and no two times the same. */
const Alike = 10;
const WaveHeader = 44;
const Clearest = 10;

/** @type {any} */
let voice;
/** @type {number[]} */
let heard = [];
let wanted = Infinity;

/** @param {string} text @param {number} number @param {number} speed */
function say(text, number, speed) {
  heard = [];
  return voice.ccall('talvoraSay', 'number', ['string', 'number', 'number'], [text, number, speed]);
}

/** How far what two have in common stands above what they have not. @param {number[]} one @param {number[]} other */
function likeness(one, other) {
  if (one.length !== other.length) return -Infinity;
  const powerOf = (/** @type {number[]} */ samples) =>
    samples.reduce((sum, sample) => sum + sample * sample, 0);
  return 10 * Math.log10(powerOf(one) / powerOf(one.map((sample, at) => sample - other[at])));
}

before(async () => {
  // What the module expects of a worker.
  Object.assign(globalThis, { self: globalThis, location: new URL(`file://${Site}/`) });
  const { default: createVoice } = await import(`${Site}/voice.js`);
  voice = await createVoice({
    wasmBinary: readFileSync(`${Site}/voice.wasm`),
    part: (/** @type {Int16Array} */ samples, /** @type {number} */ rate) => {
      assert.equal(rate, 16_000);
      heard.push(...samples);
      return heard.length < wanted ? 1 : 0;
    },
  });
  const entries = JSON.parse(readFileSync(`${Site}/pack/pack.json`, 'utf8'));
  for (const { name, file } of entries)
    if (name.endsWith('.flitevox') && !name.startsWith('rms'))
      voice.FS.writeFile(`/${name}`, gunzipSync(readFileSync(`${Site}/pack/${file}`)));
  voice.ccall('talvoraTeach', null, ['string'], ['everywhere\tzebra\tb ao1 r d\n']);
});

test('the voices sound as they do on the desktop', () => {
  const file = `${Site}-made/said.wav`;
  execFileSync('flite', ['-voice', 'slt', '-t', Sentence, '-o', file]);
  const wave = readFileSync(file);
  const samples = [...new Int16Array(wave.buffer.slice(wave.byteOffset + WaveHeader))];
  assert.equal(say(Sentence, Clearest, NaturalSpeed), 1);
  assert.ok(
    likeness(
      samples.map((sample) => sample * Gain),
      heard,
    ) > Alike,
  );
  say('Your brother is watching the fishes in the chicken.', Clearest, NaturalSpeed);
  assert.ok(
    likeness(
      samples.map((sample) => sample * Gain),
      heard,
    ) < Alike,
  );
});

test('slow and fast follow the speed', () => {
  say('go', Clearest, 50);
  const slow = heard.length;
  say('go', Clearest, 230);
  assert.ok(Math.abs(slow / heard.length - 230 / 50) < 0.6, `${slow} and ${heard.length}`);
});

test('the corrections of the pack are heard', () => {
  say('zebra', Clearest, NaturalSpeed);
  const corrected = heard;
  say('board', Clearest, NaturalSpeed);
  assert.ok(likeness(corrected, heard) > Alike);
});

test('the numbers share the voices, and one that is not there is told', () => {
  say(Sentence, Clearest, NaturalSpeed);
  const slt = heard;
  assert.equal(say(Sentence, Clearest - 2, NaturalSpeed), 1);
  assert.ok(likeness(heard, slt) < Alike);
  assert.equal(say(Sentence, Clearest - 1, NaturalSpeed), 0);
});

test('nothing more is said when no more is wanted', () => {
  wanted = 1;
  say(Sentence, Clearest, NaturalSpeed);
  wanted = Infinity;
  assert.ok(heard.length < 2000, `${heard.length}`);
});
