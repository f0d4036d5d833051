// The browser's own voices: a choice on the page of the sound's settings, kept for the next time.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Place } from './browser.js';

const place = new Place();

/** Other voices than the browser's, which speak for as long as nobody ends them. @param {any[]} voices */
function giveVoices(voices) {
  const said = /** @type {any[]} */ ([]);
  Object.assign(globalThis, { said });
  Object.defineProperty(SpeechSynthesisUtterance.prototype, 'voice', {
    writable: true,
    value: null,
  });
  Object.defineProperty(globalThis, 'speechSynthesis', {
    value: {
      getVoices: () => voices,
      speak: (/** @type {any} */ its) =>
        said.push({
          text: its.text,
          voice: its.voice.name,
          rate: its.rate,
          end: () => its.onend(),
        }),
      cancel: () => said.push({ text: 'cancelled' }),
    },
  });
}

const English = { name: 'Anna', lang: 'en-GB', localService: true, voiceURI: 'anna' };
const Others = [
  { name: 'Linh', lang: 'vi-VN', localService: true, voiceURI: 'linh' },
  { name: 'Cloud', lang: 'en-US', localService: false, voiceURI: 'cloud' },
];

/** @param {any[]} voices */
const learnerWith = (voices) =>
  place.learner({}, (context) => context.addInitScript(giveVoices, voices));

/** What was said, without how it ends. @param {import('./browser.js').Learner} learner */
const saidTo = (learner) =>
  learner.page.evaluate(() =>
    Reflect.get(globalThis, 'said').map((/** @type {any} */ { text, voice, rate }) => ({
      text,
      voice,
      rate,
    })),
  );

/** Has a word of the text spoken. @param {import('./browser.js').Learner} learner */
async function speakWord(learner) {
  await learner.open('but1', 'R1');
  // The list opens on the line above the first text, and later on that text.
  const onText = learner
    .control('R1')
    .locator('[aria-selected="true"]', { hasText: 'Small Guide' });
  if ((await onText.count()) === 0) await learner.key('ArrowDown');
  await onText.waitFor();
  await learner.key('Enter');
  await learner.at('R2');
  await learner.sees('R2');
  await learner.hearWord();
}

test('without an English voice of its own nothing is shown', async () => {
  const learner = await learnerWith(Others);
  await learner.open('but8', 'RAmthanh');
  await learner.sees('RAmthanh');
  assert.equal(await learner.page.locator('#voicesOpen').isVisible(), false);
  await learner.close();
});

test('a voice that is chosen speaks, also after a reload, until the own one is chosen', async () => {
  const learner = await learnerWith([English, ...Others]);
  const { page } = learner;
  assert.equal(await page.locator('#voicesOpen').isVisible(), false, 'not on the menu');
  await learner.open('but8', 'RAmthanh');
  await page.locator('#voicesOpen').click();
  const choice = page.getByRole('combobox', { name: 'Giọng đọc tiếng Anh' });
  assert.deepEqual(await choice.locator('option').allTextContents(), ['Giọng của Talvora', 'Anna']);
  assert.equal(await choice.inputValue(), '');
  await choice.selectOption('Anna');
  assert.deepEqual((await saidTo(learner)).at(-1), {
    text: 'This is my voice.',
    voice: 'Anna',
    rate: 1,
  });
  await page.locator('#voicesClose').click();
  await learner.backToMenu();

  await learner.reload();
  await speakWord(learner);
  await page.waitForFunction(() => Reflect.get(globalThis, 'said').length > 0);
  const [spoken] = (await saidTo(learner)).filter((/** @type {any} */ each) => each.voice);
  assert.equal(spoken.voice, 'Anna');
  assert.ok(spoken.rate > 0.1 && spoken.rate < 3, `rate ${spoken.rate}`);
  // Going back ends it.
  await learner.backToMenu();
  assert.equal((await saidTo(learner)).at(-1).text, 'cancelled');

  await learner.open('but8', 'RAmthanh');
  await page.locator('#voicesOpen').click();
  assert.equal(await choice.inputValue(), 'anna');
  await choice.selectOption('Giọng của Talvora');
  await page.locator('#voicesClose').click();
  await learner.backToMenu();
  await learner.reload();
  await speakWord(learner);
  await learner.backToMenu();
  assert.deepEqual(await saidTo(learner), []);
  await learner.open('but8', 'RAmthanh');
  await page.locator('#voicesOpen').click();
  assert.equal(await choice.inputValue(), '');
  await learner.close();
});
