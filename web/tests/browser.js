// A learner at the page in a real browser without a window, on the small pack of the scenarios.
// SITE in the environment is the folder with the page, CHROMIUM the browser.
import assert from 'node:assert/strict';
import { after } from 'node:test';
import { chromium } from 'playwright-core';
import { standing, wordsIn } from '../tools/inpage.js';
import { serve } from '../tools/serving.js';

const Patience = 30_000;
const Unseen = 4000;
/** An item of any kind, with the keyboard. */
export const AnyItem = ['RDT', 'RABCD', 'Rsai'].map((name) => `#c-${name}.focused`).join();
export const Desktop = { width: 1366, height: 768 };

/** @typedef {import('playwright-core').BrowserContextOptions} Options */

/** Serves the site that is tested. @param {string[]} how what else the server is told */
export const serveSite = (...how) => serve(process.env.SITE ?? '', ...how);

/** What a word is found by. @param {string} word */
export const patternOf = (word) => `\\b${word}\\b`;

const pause = () => new Promise((resolve) => setTimeout(resolve, 20));

/** What stands once the curtain is open. @param {() => Promise<string>} standing */
export async function behindCurtain(standing) {
  let now = await standing();
  for (; now.includes(' panel'); now = await standing()) await pause();
  return now;
}

/** Whether one change is that the hint bar has come, which it does of itself. @param {string} was @param {string} now */
function isHintBarComing(was, now) {
  const without = (/** @type {string} */ standing) => standing.replaceAll(/,c-RDOS[^,]*/g, '');
  return !was.includes('c-RDOS') && now.includes('c-RDOS') && without(now) === was;
}

/**
 * Goes back, a step at a time, until the menu stands; a step is over when the screen has changed. It waits
 * for the curtain: who goes back while that opens only sees it open.
 * @param {{isOnMenu: () => Promise<boolean>, standing: () => Promise<string>, step: () => Promise<unknown>}} ways
 */
export async function goBack({ isOnMenu, standing, step }) {
  while (!(await isOnMenu())) {
    let was = await behindCurtain(standing);
    await step();
    // A step that ends a sound changes nothing that can be seen.
    const change = Date.now() + Unseen;
    let now = was;
    while (now === was && Date.now() < change) {
      await pause();
      now = await standing();
      if (isHintBarComing(was, now)) was = now;
    }
  }
}

/** The page served, and a browser that opens it, while the tests of a file run. */
export class Place {
  /** @param {string[]} how what else the server is told */
  constructor(...how) {
    this.address = '';
    this.serving = serveSite(...how);
    this.browser = chromium.launch({
      executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
      args: ['--no-sandbox'],
    });
    after(async () => {
      await (await this.browser).close();
      (await this.serving).end();
    });
  }

  /**
   * A new learner, who is asked nothing any more and has the menu.
   * @param {Options} [options]
   * @param {(context: import('playwright-core').BrowserContext) => Promise<unknown>} [prepare]
   */
  async learner(options = {}, prepare = async () => {}) {
    this.address = (await this.serving).address;
    const context = await (await this.browser).newContext({ viewport: Desktop, ...options });
    await prepare(context);
    const learner = new Learner(context, await context.newPage());
    await learner.page.goto(this.address);
    // The first run of a learner tells where help is.
    await learner.page.locator('#yes').click();
    await learner.onMenu();
    return learner;
  }
}

export class Learner {
  /**
   * @param {import('playwright-core').BrowserContext} context
   * @param {import('playwright-core').Page} page
   */
  constructor(context, page) {
    this.context = context;
    this.page = page;
    /** @type {string[]} */
    this.faults = [];
    page.setDefaultTimeout(Patience);
    page.on('pageerror', (fault) => this.faults.push(String(fault)));
    page.on('console', (line) => {
      if (line.type() === 'error') this.faults.push(line.text());
    });
  }

  async close() {
    await this.context.close();
    assert.deepEqual(this.faults, []);
  }

  /** @param {string} name of a control */
  control(name) {
    return this.page.locator(`#c-${name}`);
  }

  /** @param {string} key @param {number} [times] */
  async key(key, times = 1) {
    for (let time = 0; time < times; ++time) await this.page.keyboard.press(key);
  }

  /** Waits until a control has the keyboard. @param {string} name */
  async at(name) {
    await this.page.locator(`#c-${name}.focused`).waitFor();
  }

  /** Waits until an item has the keyboard, which is drawn among several kinds. */
  async atItem() {
    await this.page.locator(AnyItem).waitFor();
  }

  /** Waits until a surface shows text. @param {string} name */
  async sees(name) {
    await this.control(name).locator('.line').first().waitFor();
  }

  /** Waits until a control is gone. @param {string} name */
  async misses(name) {
    await this.control(name).waitFor({ state: 'hidden' });
  }

  async onMenu() {
    await this.page.locator('.menu').nth(17).waitFor();
    await this.page.locator('.menu.focused').waitFor();
  }

  /** What stands on the screen, and who has the keyboard. */
  standing() {
    return this.page.evaluate(standing);
  }

  /** Goes back until the menu stands. @param {() => Promise<unknown>} [step] */
  async backToMenu(step = () => this.key('Escape')) {
    await goBack({
      isOnMenu: async () => (await this.page.locator('.menu.focused').count()) > 0,
      standing: () => this.standing(),
      step,
    });
    await this.onMenu();
  }

  /** Opens a section, whose page has the keyboard then. @param {string} button @param {string} page */
  async open(button, page) {
    await this.control(button).click();
    await this.at(page);
  }

  /** Opens the first line of a list that is no heading. @param {string} page that it leads to */
  async openFirst(page) {
    await this.key('ArrowDown');
    await this.key('Enter');
    await this.at(page);
    await this.sees(page);
  }

  /** Opens the first reading text. */
  async openText() {
    await this.open('but1', 'R1');
    await this.openFirst('R2');
  }

  /** Opens an item of a bank. */
  async openItem() {
    await this.open('but10', 'RN1');
    await this.key('Enter');
    await this.atItem();
  }

  /** Opens the vocabulary, in which these words stand. @param {string[]} words */
  async findInVocabulary(...words) {
    await this.open('but2', 'Rchon');
    for (const word of words) await this.control('Rchon').getByText(word).first().waitFor();
  }

  /** Loads the page anew, which opens with the menu. */
  async reload() {
    await this.page.reload();
    await this.onMenu();
  }

  /** A word of the text that is open. */
  async wordOfText() {
    const text = await this.control('R2').innerText();
    return /\b[a-z]{4,}\b/.exec(text)?.[0] ?? '';
  }

  /** The middle of a word of a surface. @param {string} name @param {string} word */
  async pointOf(name, word) {
    const [point] = await this.control(name).evaluateAll(wordsIn, patternOf(word));
    assert.ok(point, `${word} stands in ${name}`);
    return point;
  }

  /** @param {string} name @param {string} word @param {'left' | 'right'} [button] */
  async clickWord(name, word, button = 'left') {
    const { x, y } = await this.pointOf(name, word);
    await this.page.mouse.click(x, y, { button });
  }

  /** Looks a word of the text up. */
  async lookUp() {
    const word = await this.wordOfText();
    await this.clickWord('R2', word);
    await this.sees('RHD');
    return word;
  }

  /** Looks a word of the text up and keeps it. */
  async takeWord() {
    const word = await this.lookUp();
    await this.key('Enter');
    await this.page.locator('#typed', { hasText: 'Đã lưu' }).waitFor();
    return word;
  }

  /** Looks a word of the text up and has it spoken. */
  async hearWord() {
    await this.clickWord('R2', await this.lookUp(), 'right');
  }
}
