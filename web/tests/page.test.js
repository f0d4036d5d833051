// The page as a whole: it comes up, looks words up, keeps them, and closes.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Place } from './browser.js';

const place = new Place();

test('the menu stands, and its captions are right Vietnamese', async () => {
  const learner = await place.learner();
  assert.equal(await learner.page.locator('.menu').count(), 18);
  const captions = await learner.page.locator('.menu').allTextContents();
  for (const caption of captions) assert.match(caption, /^[\p{L}\p{N}\p{P}\p{Zs}]+$/u);
  await learner.close();
});

test('a click on a word shows its entry, and Esc takes it away', async () => {
  const learner = await place.learner();
  await learner.openText();
  await learner.lookUp();
  assert.ok((await learner.control('RHD').innerText()).length > 0);
  await learner.key('Escape');
  await learner.misses('RHD');
  await learner.close();
});

test('a word that is taken is there after a reload in the middle of a text', async () => {
  const learner = await place.learner();
  await learner.openText();
  const word = await learner.takeWord();
  await learner.reload();
  await learner.findInVocabulary(word);
  await learner.backToMenu();
  // The list of texts opens where it was left.
  await learner.open('but1', 'R1');
  await learner
    .control('R1')
    .locator('[aria-selected="true"]', { hasText: 'Small Guide' })
    .waitFor();
  await learner.close();
});

test('a second page on the same files says so', async () => {
  const learner = await place.learner();
  const second = await learner.context.newPage();
  await second.goto(place.address);
  await second.getByText('Talvora đang chạy rồi').waitFor();
  await second.close();
  await learner.close();
});

test('without a network the page opens all the same', async () => {
  const learner = await place.learner();
  await learner.page.evaluate(() => navigator.serviceWorker.ready);
  await learner.reload();
  await learner.context.setOffline(true);
  await learner.reload();
  assert.equal(await learner.page.locator('.menu').count(), 18);
  learner.faults = [];
  await learner.close();
});

test('the close box asks, and the page can be opened again', async () => {
  const learner = await place.learner();
  await learner.page.locator('#close').click();
  await learner.page.locator('#no').click();
  await learner.onMenu();
  await learner.page.locator('#close').click();
  await learner.page.locator('#yes').click();
  await learner.page.getByText('Talvora đã đóng.').waitFor();
  await learner.page.getByRole('button', { name: 'Mở lại' }).click();
  await learner.onMenu();
  await learner.close();
});

test('lines that look alike all stay, however often they are painted', async () => {
  const learner = await place.learner();
  const counts = await learner.page.evaluate(async () => {
    const { FormView } = await import(new URL('form.js', location.href).href);
    const root = document.createElement('div');
    const view = new FormView(root);
    const line = { high: 300, left: 100, runs: [{ text: 'a', face: 0, size: 200, color: '#000' }] };
    const lines = [0, 300, 600].map((top) => ({ ...line, top, id: top === 300 ? 2 : 1 }));
    const surface = {
      name: 'R1',
      shown: true,
      kind: 'surface',
      depth: 1,
      label: '',
      box: [0, 0, 9, 9],
    };
    return [lines, lines, [...lines, { ...line, top: 900, id: 1 }], lines.slice(0, 1)].map(
      (its) => {
        view.paint({ controls: [{ ...surface, lines: its }], focus: '', menu: false });
        return root.querySelectorAll('.line').length;
      },
    );
  });
  assert.deepEqual(counts, [3, 3, 4, 1]);
  await learner.close();
});
