// Every section by mouse, by keys, and by fingers.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Place } from './browser.js';

/** The menu's buttons and the page that has the keyboard when they are pressed. */
const Sections = [
  ['but1', 'R1'],
  ['but3', 'RVP1'],
  ['but4', 'RN1'],
  ['but5', 'R1'],
  ['but7', 'R1'],
  ['but8', 'RAmthanh'],
  ['but9', 'Rcachhoc'],
  ...[10, 11, 12, 13, 14, 15, 16, 17, 18].map((number) => [`but${number}`, 'RN1']),
];
const Phones = [
  { width: 844, height: 390 },
  { width: 390, height: 844 },
];
const LongPressMs = 800;

const place = new Place();

test('every section opens by a click and closes by Esc', async () => {
  const learner = await place.learner();
  for (const [button, page] of Sections) {
    await learner.open(button, page);
    await learner.backToMenu();
  }
  await learner.control('but6').click();
  await learner.control('RHD').getByText('Phần này đang xây dựng.').waitFor();
  await learner.close();
});

test('keys alone lead from the menu through a text, a lesson and an item', async () => {
  const learner = await place.learner();
  const goTo = async (/** @type {string} */ button) => {
    for (let step = 0; step < 18; ++step) {
      const at = await learner.page.locator('.menu.focused').getAttribute('id');
      if (at === `c-${button}`) return;
      await learner.key('ArrowDown');
      await learner.page.locator(`.menu.focused:not(#${at})`).waitFor();
    }
    assert.fail(`the arrows do not come to ${button}`);
  };
  await goTo('but1');
  await learner.key('Enter');
  await learner.at('R1');
  await learner.openFirst('R2');
  await learner.key('ArrowRight', 3);
  await learner.key('F10');
  await learner.sees('RHD');
  await learner.key('Escape');
  await learner.misses('RHD');
  await learner.key('F2');
  await learner.sees('RDOS');
  await learner.backToMenu();
  await goTo('but3');
  await learner.key('Enter');
  await learner.at('RVP1');
  await learner.openFirst('RVP2');
  await learner.backToMenu();
  await goTo('but10');
  await learner.key('Enter');
  await learner.at('RN1');
  await learner.key('Enter');
  await learner.atItem();
  await learner.page.locator('#title', { hasText: 'Cau' }).waitFor();
  await learner.close();
});

test('typed letters find a word in the list of words', async () => {
  const learner = await place.learner();
  await learner.openText();
  await learner.page.keyboard.type('wat');
  await learner.control('RTD').locator('.current').waitFor();
  await learner.page.locator('#typed', { hasText: 'wat' }).waitFor();
  await learner.close();
});

for (const viewport of Phones) {
  test(`fingers do what a mouse does on ${viewport.width} by ${viewport.height}`, async () => {
    const learner = await place.learner({ viewport, hasTouch: true, isMobile: true });
    const { page } = learner;
    const fingers = await learner.context.newCDPSession(page);
    /** @param {'touchStart' | 'touchMove' | 'touchEnd'} type @param {{x: number, y: number}[]} touchPoints */
    const touch = (type, touchPoints) =>
      fingers.send('Input.dispatchTouchEvent', { type, touchPoints });
    const twoFingers = async () => {
      const middle = { x: viewport.width / 2, y: viewport.height / 2 };
      await touch('touchStart', [middle, { x: middle.x + 40, y: middle.y }]);
      await touch('touchEnd', []);
    };

    for (const [button, its] of Sections.slice(0, 2)) {
      await learner.control(button).tap();
      await learner.at(its);
      await learner.backToMenu(twoFingers);
    }
    await learner.control('but1').tap();
    await learner.at('R1');
    await learner.key('ArrowDown');
    await page.getByRole('button', { name: 'Enter' }).tap();
    await learner.at('R2');
    const point = await learner.pointOf('R2', await learner.wordOfText());
    await page.touchscreen.tap(point.x, point.y);
    await learner.sees('RHD');
    await page.getByRole('button', { name: 'Esc', exact: true }).tap();
    await learner.misses('RHD');
    // A long press is the right button, which speaks the sentence and marks it.
    await touch('touchStart', [point]);
    await page.waitForTimeout(LongPressMs);
    await touch('touchEnd', []);
    await learner.control('R2').locator('.selected').first().waitFor();
    await page.getByRole('button', { name: 'F2', exact: true }).tap();
    await learner.sees('RDOS');
    await learner.close();
  });
}

test('a finger that moves on scrolls a list', async () => {
  const viewport = Phones[0];
  const learner = await place.learner({ viewport, hasTouch: true, isMobile: true });
  await learner.control('but3').tap();
  await learner.at('RVP1');
  const list = learner.control('RVP1');
  const before = await list.locator('.line').first().textContent();
  const fingers = await learner.context.newCDPSession(learner.page);
  const x = viewport.width / 2;
  await fingers.send('Input.dispatchTouchEvent', {
    type: 'touchStart',
    touchPoints: [{ x, y: 250 }],
  });
  for (let y = 230; y >= 90; y -= 20)
    await fingers.send('Input.dispatchTouchEvent', { type: 'touchMove', touchPoints: [{ x, y }] });
  await fingers.send('Input.dispatchTouchEvent', { type: 'touchEnd', touchPoints: [] });
  await learner.page.waitForFunction(
    (was) => document.querySelector('#c-RVP1 .line')?.textContent !== was,
    before,
  );
  await learner.close();
});
