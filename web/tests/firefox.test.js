// The page in Firefox: texts, entries, lessons and items open, and a word that was kept is there after a
// reload, with a network and without.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import puppeteer from 'puppeteer-core';
import { standing, wordsIn } from '../tools/inpage.js';
import { AnyItem, Desktop, goBack, patternOf, serveSite } from './browser.js';

const Patience = 60_000;

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
    const learner = new Learner(await serveSite(), await browser.newPage());
    learner.page.setDefaultTimeout(Patience);
    await learner.page.setViewport(Desktop);
    await learner.page.goto(learner.serving.address);
    await learner.click('#yes');
    await learner.seen('.menu.focused');
    return learner;
  }

  /**
   * @param {Awaited<ReturnType<typeof serveSite>>} serving
   * @param {import('puppeteer-core').Page} page
   */
  constructor(serving, page) {
    this.serving = serving;
    this.page = page;
  }

  async go() {
    await this.page.close();
    this.serving.end();
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

  /** Waits until a text stands in an element. @param {string} what @param {string} text */
  async reads(what, text) {
    await this.page.waitForFunction(
      (its, wanted) => document.querySelector(its)?.textContent?.includes(wanted),
      {},
      what,
      text,
    );
  }

  async backToMenu() {
    await goBack({
      isOnMenu: async () => (await this.page.$('.menu.focused')) !== null,
      standing: () => this.page.evaluate(standing),
      step: () => this.press('Escape'),
    });
  }

  /** Loads the page anew, which opens with the menu. */
  async reload() {
    await this.page.reload();
    await this.seen('.menu.focused');
  }

  /** Opens a section, whose page has the keyboard then. @param {string} button @param {string} page */
  async open(button, page) {
    await this.click(`#c-${button}`);
    await this.seen(`#c-${page}.focused`);
  }

  /** Opens the first line of a list that is no heading. @param {string} page that it leads to */
  async openFirst(page) {
    await this.press('ArrowDown', 'Enter');
    await this.seen(`#c-${page}.focused`);
    await this.seen(`#c-${page} .line`);
  }

  async openText() {
    await this.open('but1', 'R1');
    await this.openFirst('R2');
  }

  /** Looks a word of the text up and keeps it. @param {string} word */
  async takeWord(word) {
    const [point] = await this.page.$$eval('#c-R2', wordsIn, patternOf(word));
    assert.ok(point, `${word} stands in the text`);
    await this.page.mouse.click(point.x, point.y);
    await this.seen('#c-RHD .line');
    await this.press('Enter');
    await this.reads('#typed', `Đã lưu: ${word}`);
  }

  /** Opens the vocabulary, in which a word stands. @param {string} word */
  async findInVocabulary(word) {
    await this.open('but2', 'Rchon');
    await this.reads('#c-Rchon', word);
  }
}

test('a text opens, a click shows an entry, and the word is kept', async () => {
  const learner = await Learner.come();
  assert.equal((await learner.page.$$('.menu')).length, 18);
  await learner.openText();
  await learner.takeWord('word');
  await learner.reload();
  await learner.findInVocabulary('word');
  await learner.go();
});

test('a lesson opens, is marked, and its items are worked through', async () => {
  const learner = await Learner.come();
  const { keyboard } = learner.page;
  await learner.open('but3', 'RVP1');
  await learner.openFirst('RVP2');
  await learner.press('Escape');
  await learner.seen('#c-RVP1.focused');
  await keyboard.down('Shift');
  await learner.press('F10');
  await keyboard.up('Shift');
  await learner.press('Enter');
  await learner.seen('#c-RDT.focused');
  await keyboard.type('goes');
  await learner.press('Enter');
  await learner.reads('#told', 'Đúng 1 trên 2 chỗ');
  await learner.press('Enter');
  await learner.seen('#c-RABCD.focused');
  await learner.backToMenu();
  await learner.go();
});

test('an item of a bank opens', async () => {
  const learner = await Learner.come();
  await learner.open('but10', 'RN1');
  await learner.press('Enter');
  await learner.seen(AnyItem);
  await learner.reads('#title', 'Cau');
  await learner.backToMenu();
  await learner.go();
});

test('without a network the page opens, and the word that was kept is there', async () => {
  const learner = await Learner.come();
  const { page } = learner;
  await learner.openText();
  await learner.takeWord('word');
  await learner.reload();
  // The page is the service worker's, and the pack is kept.
  await page.waitForFunction(() => navigator.serviceWorker.controller !== null);
  await learner.seen('[data-kept]');
  learner.serving.end();
  await learner.reload();
  await learner.findInVocabulary('word');
  await learner.backToMenu();
  await learner.openText();
  await learner.go();
});
