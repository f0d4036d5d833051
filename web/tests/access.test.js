// What a screen reader hears: roles, names and notes; and axe-core's rules on every kind of page.
import assert from 'node:assert/strict';
import { readFile } from 'node:fs/promises';
import { test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { Place } from './browser.js';

const place = new Place();

/** @param {import('./browser.js').Learner} learner @param {string} where */
async function expectNoFault(learner, where) {
  const axe = await readFile(fileURLToPath(import.meta.resolve('axe-core/axe.min.js')), 'utf8');
  await learner.page.evaluate(axe);
  const found = await learner.page.evaluate(async () => {
    const { violations } = await /** @type {any} */ (globalThis).axe.run(document, {
      runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'best-practice'],
    });
    return violations.flatMap((/** @type {any} */ each) =>
      each.nodes.map((/** @type {any} */ node) => `${each.id}: ${node.html.slice(0, 200)}`),
    );
  });
  assert.deepEqual(found, [], where);
}

test('the pages have roles and names, and no fault that axe-core knows', async () => {
  const learner = await place.learner();
  const { page } = learner;
  await expectNoFault(learner, 'menu');
  await page.getByRole('button', { name: 'BÀI ĐỌC' }).waitFor();
  await learner.open('but1', 'R1');
  const list = page.getByRole('listbox', { name: 'Danh sách bài' });
  await list.getByRole('option', { selected: true }).waitFor();
  await expectNoFault(learner, 'list');
  await learner.openFirst('R2');
  await page.getByRole('document', { name: 'Bài đọc' }).waitFor();
  await expectNoFault(learner, 'text');
  await learner.lookUp();
  await page.getByRole('document', { name: 'Nghĩa của từ' }).waitFor();
  await expectNoFault(learner, 'entry');
  await learner.key('F2');
  await learner.sees('RDOS');
  await expectNoFault(learner, 'hints');
  await learner.backToMenu();
  await learner.openItem();
  await expectNoFault(learner, 'item');
  await learner.close();
});

test('what comes up is told: entries, words that were taken, questions', async () => {
  const learner = await place.learner();
  await learner.openText();
  await learner.takeWord();
  await learner.page.locator('#told', { hasText: 'Đã lưu' }).waitFor();
  await learner.lookUp();
  const entry = (await learner.control('RHD').locator('.line').first().textContent()) ?? '-';
  await learner.page.waitForFunction(
    (first) => document.querySelector('#told')?.textContent?.includes(first.trim()),
    entry,
  );
  await learner.backToMenu();
  await learner.page.locator('#close').click();
  await learner.page.getByRole('alertdialog').waitFor();
  await expectNoFault(learner, 'question');
  await learner.close();
});

test('English is marked as English and Vietnamese as Vietnamese', async () => {
  const learner = await place.learner();
  await learner.openText();
  assert.equal(await learner.control('R2').locator('.line').first().getAttribute('lang'), 'en');
  assert.equal(await learner.page.locator('html').getAttribute('lang'), 'vi');
  await learner.close();
});

test('nothing is asked of anybody but the page itself', async () => {
  /** @type {string[]} */
  const strangers = [];
  const learner = await place.learner({}, async (context) => {
    context.on('request', (request) => {
      if (!request.url().startsWith(place.address)) strangers.push(request.url());
    });
  });
  await learner.openText();
  await learner.takeWord();
  assert.deepEqual(strangers, []);
  const refused = await learner.page.evaluate(async () => {
    const script = document.createElement('script');
    script.textContent = 'globalThis.broken = true';
    document.body.append(script);
    return !(/** @type {any} */ (globalThis).broken);
  });
  assert.ok(refused, 'a script of nobody does not run');
  learner.faults = [];
  await learner.close();
});
