// What is heard: the voices and the recordings, once the learner has touched the page.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Place } from './browser.js';

const place = new Place();

/** Notes what the page gives to the device: seconds, and the loudest sample. */
function listen() {
  const heard = /** @type {{seconds: number, loudest: number}[]} */ ([]);
  Object.assign(globalThis, { heard });
  const { start } = AudioBufferSourceNode.prototype;
  /** @param {number} [when] @param {number} [offset] @param {number} [seconds] */
  AudioBufferSourceNode.prototype.start = function (when, offset, seconds) {
    const samples = this.buffer?.getChannelData(0) ?? new Float32Array();
    const loudest = samples.reduce((most, sample) => Math.max(most, Math.abs(sample)), 0);
    heard.push({ seconds: seconds ?? 0, loudest });
    return start.call(this, when ?? 0, offset ?? 0, seconds ?? this.buffer?.duration ?? 0);
  };
}

/** @param {import('./browser.js').Learner} learner */
const heardBy = (learner) =>
  learner.page.evaluate(
    () => /** @type {{seconds: number, loudest: number}[]} */ (Reflect.get(globalThis, 'heard')),
  );

/** @param {import('./browser.js').Learner} learner */
const untilHeard = (learner) =>
  learner.page.waitForFunction(() =>
    Reflect.get(globalThis, 'heard').some((/** @type {any} */ { loudest }) => loudest > 0.05),
  );

const newLearner = () => place.learner({}, (context) => context.addInitScript(listen));

test('a word is spoken, and going back ends it', async () => {
  const learner = await newLearner();
  await learner.openText();
  assert.deepEqual(await heardBy(learner), []);
  await learner.hearWord();
  await untilHeard(learner);
  await learner.backToMenu();
  const parts = (await heardBy(learner)).length;
  await learner.page.waitForTimeout(500);
  assert.equal((await heardBy(learner)).length, parts, 'it has ended');
  await learner.close();
});

test('a recording plays a sentence at a time', async () => {
  const learner = await newLearner();
  await learner.open('but4', 'RN1');
  await learner.key('ArrowDown');
  await learner.key('Enter');
  await untilHeard(learner);
  const [first] = await heardBy(learner);
  assert.ok(first.seconds < 30, 'not the whole of it');
  await learner.close();
});
