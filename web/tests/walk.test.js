// A random walk through the page: whatever a learner does, something that can be seen has the keyboard,
// nothing fails, and Esc leads to the menu. SEED and STEPS in the environment choose another walk.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Place } from './browser.js';

const Steps = Number(process.env.STEPS ?? '200');
const Seed = Number(process.env.SEED ?? '1');
const StepsToMenu = 50;
const MostEscapes = 40;
const PauseMs = 30;
const Keys = [
  ...['ArrowUp', 'ArrowDown', 'ArrowLeft', 'ArrowRight', 'Enter', 'Escape', ' ', 'Control', 'Tab'],
  ...[
    'Home',
    'End',
    'PageUp',
    'PageDown',
    'Delete',
    'F2',
    'F6',
    'F9',
    'F10',
    'Shift+F10',
    'a',
    's',
  ],
];

const place = new Place();

/** Numbers below a bound, the same for the same seed. @param {number} seed */
function dice(seed) {
  return (/** @type {number} */ bound) => {
    seed = (Math.imul(seed, 1664525) + 1013904223) >>> 0;
    return Math.floor((seed / 2 ** 32) * bound);
  };
}

/** @param {import('playwright-core').Page} page @param {(bound: number) => number} roll */
async function step(page, roll) {
  const { width, height } = page.viewportSize() ?? { width: 1, height: 1 };
  // The strip above has the buttons that end the program.
  const point = /** @type {[number, number]} */ ([roll(width), 30 + roll(height - 30)]);
  const deeds = [
    () => page.keyboard.press(Keys[roll(Keys.length)]),
    () => page.keyboard.press(Keys[roll(Keys.length)]),
    () => page.mouse.click(...point),
    () => page.mouse.click(...point, { button: 'right' }),
    () => page.mouse.dblclick(...point),
    () => page.mouse.move(...point),
    () => page.mouse.wheel(0, roll(600) - 300),
  ];
  await deeds[roll(deeds.length)]();
  await page.waitForTimeout(PauseMs);
}

/** Answers what is asked, and goes back until the menu stands. @param {import('./browser.js').Learner} learner */
async function leave(learner) {
  const { page } = learner;
  for (let time = 0; time < MostEscapes; ++time) {
    if (await page.locator('#box').isVisible()) await page.keyboard.press('Escape');
    // Esc on the menu asks for the end, and Enter may have agreed.
    const again = page.getByRole('button', { name: 'Mở lại' });
    if (await again.isVisible()) {
      await again.click();
      await learner.onMenu();
    }
    if ((await page.locator('.menu.focused').count()) > 0) return;
    await page.keyboard.press('Escape');
    await page.waitForTimeout(500);
  }
  assert.fail('Esc does not lead to the menu');
}

test(`a walk of ${Steps} steps with the seed ${Seed}`, async () => {
  const learner = await place.learner();
  const roll = dice(Seed);
  for (let at = 1; at <= Steps; ++at) {
    await step(learner.page, roll);
    if (at % StepsToMenu !== 0) continue;
    await leave(learner);
    await learner.onMenu();
    assert.deepEqual(learner.faults, [], `by step ${at}`);
  }
  await learner.close();
});
