// The page in Firefox: texts, entries, lessons and items open, and a word that was kept is there after a
// reload, with a network and without.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import puppeteer from 'puppeteer-core';
import { AnyItem } from './browser.js';

const Patience = 60_000;
const Unseen = 4000;
const server = fileURLToPath(new URL('../tools/serve.js', import.meta.url));

/** @type {import('puppeteer-core').Browser} */
let browser;
before(async () => {
  browser = await puppeteer.launch({
    browser: 'firefox',
    executablePath: process.env.FIREFOX ?? '/usr/bin/firefox',
    headless: true,
    timeout: Patience,
  });
});
after(() => browser?.close());

/** A learner at a server of their own. */
class Learner {
  /** One who is asked nothing any more and has the menu. */
  static async come() {
    const learner = new Learner();
    learner.serving = spawn(process.execPath, [server, process.env.SITE ?? '', '0']);
    const address = await new Promise((resolve) =>
      learner.serving?.stdout?.once('data', (line) => resolve(String(line).trim())),
    );
    learner.page = await browser.newPage();
    learner.page.setDefaultTimeout(Patience);
    await learner.page.setViewport({ width: 1366, height: 768 });
    await learner.page.goto(address);
    await learner.click('#yes');
    await learner.seen('.menu.focused');
    return learner;
  }

  constructor() {
    /** @type {import('node:child_process').ChildProcess | undefined} */
    this.serving = undefined;
    /** @type {import('puppeteer-core').Page} */
    this.page = /** @type {any} */ (undefined);
  }

  async go() {
    await this.page.close();
    this.serving?.kill();
  }

  /** @param {string} what */
  seen(what) {
    return this.page.waitForSelector(what, { visible: true });
  }

  /** @param {string} what */
  async click(what) {
    await (await this.seen(what))?.click();
  }

  /** @param {import('puppeteer-core').KeyInput[]} keys */
  async press(...keys) {
    for (const key of keys) await this.page.keyboard.press(key);
  }

  standing() {
    return this.page.evaluate(() =>
      [...document.querySelectorAll('[id^="c-"]')]
        .filter((each) => each.checkVisibility())
        .map((each) => `${each.id} ${each.className}`)
        .join(),
    );
  }

  async backToMenu() {
    while ((await this.page.$('.menu.focused')) === null) {
      const before = await this.standing();
      await this.press('Escape');
      // A step that ends a sound changes nothing that can be seen.
      const change = Date.now() + Unseen;
      while ((await this.standing()) === before && Date.now() < change)
        await new Promise((resolve) => setTimeout(resolve, 20));
    }
  }

  async openText() {
    await this.click('#c-but1');
    await this.seen('#c-R1.focused');
    await this.press('ArrowDown', 'Enter');
    await this.seen('#c-R2.focused');
    await this.seen('#c-R2 .line');
  }

  /** Looks a word of the text up and keeps it. @param {string} word */
  async takeWord(word) {
    const point = await this.page.$eval(
      '#c-R2',
      (surface, wanted) => {
        const walker = document.createTreeWalker(surface, NodeFilter.SHOW_TEXT);
        for (let node = walker.nextNode(); node !== null; node = walker.nextNode()) {
          const at = (node.textContent ?? '').search(new RegExp(`\\b${wanted}\\b`));
          if (at < 0) continue;
          const range = document.createRange();
          range.setStart(node, at);
          range.setEnd(node, at + wanted.length);
          const { x, y, width, height } = range.getBoundingClientRect();
          return { x: x + width / 2, y: y + height / 2 };
        }
        return { x: 0, y: 0 };
      },
      word,
    );
    await this.page.mouse.click(point.x, point.y);
    await this.seen('#c-RHD .line');
    await this.press('Enter');
    await this.page.waitForFunction(
      (text) => document.querySelector('#typed')?.textContent?.includes(text),
      {},
      `Đã lưu: ${word}`,
    );
  }

  /** Opens the vocabulary, in which a word stands. @param {string} word */
  async findInVocabulary(word) {
    await this.click('#c-but2');
    await this.seen('#c-Rchon.focused');
    await this.page.waitForFunction(
      (text) => document.querySelector('#c-Rchon')?.textContent?.includes(text),
      {},
      word,
    );
  }
}

test('a text opens, a click shows an entry, and the word is kept', async () => {
  const learner = await Learner.come();
  assert.equal((await learner.page.$$('.menu')).length, 18);
  await learner.openText();
  await learner.takeWord('word');
  await learner.page.reload();
  await learner.seen('.menu.focused');
  await learner.findInVocabulary('word');
  await learner.go();
});

test('a lesson and an item open, and without a network the vocabulary is there', async () => {
  const learner = await Learner.come();
  const { page } = learner;
  await learner.click('#c-but3');
  await learner.seen('#c-RVP1.focused');
  await learner.press('ArrowDown', 'Enter');
  await learner.seen('#c-RVP2.focused');
  await learner.seen('#c-RVP2 .line');
  await learner.backToMenu();
  await learner.click('#c-but10');
  await learner.seen('#c-RN1.focused');
  await learner.press('Enter');
  await learner.seen(AnyItem);
  await page.waitForFunction(() => document.querySelector('#title')?.textContent?.includes('Cau'));
  await learner.backToMenu();
  await learner.openText();
  await learner.takeWord('word');
  await page.reload();
  await learner.seen('.menu.focused');
  await learner.findInVocabulary('word');
  // The page is the service worker's, and the pack is kept.
  await page.waitForFunction(() => navigator.serviceWorker.controller !== null);
  await learner.seen('[data-kept]');
  learner.serving?.kill();
  await page.reload();
  await learner.seen('.menu.focused');
  await learner.findInVocabulary('word');
  await learner.backToMenu();
  await learner.openText();
  await learner.go();
});
