// Hosts that send no headers of their own: the service worker adds them, and where there is none, page
// and program get along without shared memory.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Place } from './browser.js';

const place = new Place('plain');

const isolated = () => globalThis.crossOriginIsolated;

test('the service worker adds the headers that a host does not send', async () => {
  const learner = await place.learner();
  assert.equal(await learner.page.evaluate(isolated), true);
  await learner.openText();
  await learner.takeWord();
  await learner.close();
});

test('without shared memory the program is suspended while it waits', async () => {
  const learner = await place.learner({ serviceWorkers: 'block' });
  assert.equal(await learner.page.evaluate(isolated), false);
  await learner.openText();
  const word = await learner.takeWord();
  await learner.backToMenu();
  // The section takes its time to open and closes by itself.
  await learner.control('but6').click();
  await learner.control('RHD').getByText('Phần này đang xây dựng.').waitFor();
  await learner.misses('RHD');
  await learner.openItem();
  await learner.reload();
  await learner.findInVocabulary(word);
  await learner.close();
});

test('speech ends by itself where memory is not shared', async () => {
  const learner = await place.learner({ serviceWorkers: 'block' });
  await learner.openText();
  await learner.hearWord();
  // F9 reads the text aloud, a sentence behind the other.
  await learner.key('F9');
  await learner.control('R2').locator('.selected').first().waitFor();
  await learner.backToMenu();
  await learner.close();
});
