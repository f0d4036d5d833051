// A learner at the page in a real browser without a window, on the small pack of the scenarios.
// SITE in the environment is the folder with the page, CHROMIUM the browser.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const Patience = 30_000;
const Unseen = 4000;
/** An item of any kind, with the keyboard. */
export const AnyItem = ['RDT', 'RABCD', 'Rsai'].map((name) => `#c-${name}.focused`).join();
const Desktop = { width: 1366, height: 768 };
const server = fileURLToPath(new URL('../tools/serve.js', import.meta.url));

/** @typedef {import('playwright-core').BrowserContextOptions} Options */

/** The page served, and a browser that opens it. */
export class Place {
  /** @param {string[]} [how] what else the server is told */
  static async open(how = []) {
    const place = new Place();
    place.serving = spawn(process.execPath, [server, process.env.SITE ?? '', '0', ...how]);
    place.address = await new Promise((resolve) =>
      place.serving?.stdout?.once('data', (line) => resolve(String(line).trim())),
    );
    place.browser = await chromium.launch({
      executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
      args: ['--no-sandbox'],
    });
    return place;
  }

  constructor() {
    /** @type {import('node:child_process').ChildProcess | undefined} */
    this.serving = undefined;
    /** @type {import('playwright-core').Browser | undefined} */
    this.browser = undefined;
    this.address = '';
  }

  async close() {
    await this.browser?.close();
    this.serving?.kill();
  }

  /**
   * A new learner, who is asked nothing any more and has the menu.
   * @param {Options} [options]
   * @param {(context: import('playwright-core').BrowserContext) => Promise<unknown>} [prepare]
   */
  async learner(options = {}, prepare = async () => {}) {
    assert.ok(this.browser);
    const context = await this.browser.newContext({ viewport: Desktop, ...options });
    await prepare(context);
    const learner = new Learner(context, await context.newPage(), this.address);
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
   * @param {string} address
   */
  constructor(context, page, address) {
    this.context = context;
    this.page = page;
    this.address = address;
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

  async onMenu() {
    await this.page.locator('.menu').nth(17).waitFor();
    await this.page.locator('.menu.focused').waitFor();
  }

  /** What stands on the screen, and who has the keyboard. */
  standing() {
    return this.page.evaluate(() =>
      [...document.querySelectorAll('[id^="c-"]')]
        .filter((each) => each.checkVisibility())
        .map((each) => `${each.id} ${each.className}`)
        .join(),
    );
  }

  /**
   * Goes back, a step at a time, until the menu stands; a step is over when the screen has changed.
   * @param {() => Promise<unknown>} [step]
   */
  async backToMenu(step = () => this.key('Escape')) {
    while ((await this.page.locator('.menu.focused').count()) === 0) {
      const before = await this.standing();
      await step();
      // A step that ends a sound changes nothing that can be seen.
      const change = Date.now() + Unseen;
      while ((await this.standing()) === before && Date.now() < change)
        await this.page.waitForTimeout(20);
    }
    await this.onMenu();
  }

  /** Opens the vocabulary, in which these words stand. @param {string[]} words */
  async findInVocabulary(...words) {
    await this.control('but2').click();
    await this.at('Rchon');
    for (const word of words) await this.control('Rchon').getByText(word).first().waitFor();
  }

  /** Loads the page anew, which opens with the menu. */
  async reload() {
    await this.page.reload();
    await this.onMenu();
  }

  /** Opens the first reading text, which stands below a heading. */
  async openText() {
    await this.control('but1').click();
    await this.at('R1');
    await this.key('ArrowDown');
    await this.key('Enter');
    await this.at('R2');
    await this.control('R2').locator('.line').first().waitFor();
  }

  /** A word of the text that is open. */
  async wordOfText() {
    const text = await this.control('R2').innerText();
    return /\b[a-z]{4,}\b/.exec(text)?.[0] ?? '';
  }

  /** The middle of a word of a surface. @param {string} name @param {string} word */
  async pointOf(name, word) {
    const point = await this.control(name).evaluate((element, wanted) => {
      const walker = document.createTreeWalker(element, NodeFilter.SHOW_TEXT);
      for (let node = walker.nextNode(); node !== null; node = walker.nextNode()) {
        const at = (node.textContent ?? '').search(new RegExp(`\\b${wanted}\\b`));
        if (at < 0) continue;
        const range = document.createRange();
        range.setStart(node, at);
        range.setEnd(node, at + wanted.length);
        const box = range.getBoundingClientRect();
        return { x: box.x + box.width / 2, y: box.y + box.height / 2 };
      }
      return null;
    }, word);
    assert.ok(point, `${word} stands in ${name}`);
    return point;
  }

  /** @param {string} name @param {string} word */
  async clickWord(name, word) {
    const point = await this.pointOf(name, word);
    await this.page.mouse.click(point.x, point.y);
  }

  /** Looks a word of the text up and keeps it. */
  async takeWord() {
    const word = await this.wordOfText();
    await this.clickWord('R2', word);
    await this.control('RHD').locator('.line').first().waitFor();
    await this.key('Enter');
    await this.page.locator('#typed', { hasText: 'Đã lưu' }).waitFor();
    return word;
  }
}
