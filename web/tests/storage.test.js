// Browsers that keep nothing, and a store that is full.
import { readFile } from 'node:fs/promises';
import { test } from 'node:test';
import { Place } from './browser.js';

const place = new Place();

/** A learner whose browser has another store: lines that run ahead of the page's own. @param {string} lines */
async function learnerWithStore(lines) {
  const own = await readFile(`${process.env.SITE}/own.js`, 'utf8');
  return place.learner({ serviceWorkers: 'block' }, (context) =>
    context.route('**/own.js', (route) =>
      route.fulfill({
        contentType: 'text/javascript',
        headers: { 'Cross-Origin-Embedder-Policy': 'require-corp' },
        body: `${lines}\n${own}`,
      }),
    ),
  );
}

test('where nothing is kept that is said, and the sections work', async () => {
  const learner = await learnerWithStore(
    'navigator.storage.getDirectory = () => Promise.reject(new Error("denied"));',
  );
  await learner.page.locator('#typed', { hasText: 'không cho lưu' }).waitFor();
  await learner.openText();
  await learner.takeWord();
  await learner.close();
});

test('a store that is full loses nothing that was there, and says so', async () => {
  const learner = await learnerWithStore(`
    // The page reads this module as well as the worker, and has no such handles.
    const { write } = globalThis.FileSystemSyncAccessHandle?.prototype ?? {};
    if (write)
      FileSystemSyncAccessHandle.prototype.write = function (from, options) {
        if (globalThis.full && from.length > 20) throw new DOMException('full', 'QuotaExceededError');
        return write.call(this, from, options);
      };`);
  await learner.openText();
  const word = await learner.takeWord();
  for (const worker of learner.page.workers())
    await worker.evaluate(() => Object.assign(globalThis, { full: true }));
  await learner.backToMenu();
  // The list is written when another section begins.
  await learner.control('but7').click();
  await learner.page.locator('#boxText', { hasText: 'Chưa ghi được từ vựng vào đĩa' }).waitFor();
  await learner.reload();
  await learner.findInVocabulary(word);
  await learner.close();
});
