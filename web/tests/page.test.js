// The page in a real browser without a window, on the small pack of the scenarios.
//
// usage: SITE=folder node --test page.test.js
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { after, before, beforeEach, afterEach, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const Patience = 20_000;
const server = fileURLToPath(new URL('../tools/serve.js', import.meta.url));

/** @type {import('node:child_process').ChildProcess} */
let serving;
let address = '';
/** @type {import('playwright-core').Browser} */
let browser;
/** @type {import('playwright-core').BrowserContext} */
let context;
/** @type {import('playwright-core').Page} */
let page;

before(async () => {
  serving = spawn(process.execPath, [server, process.env.SITE ?? '', '0']);
  address = await new Promise((resolve) =>
    serving.stdout?.once('data', (line) => resolve(String(line).trim())),
  );
  browser = await chromium.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    args: ['--no-sandbox'],
  });
});
after(async () => {
  await browser?.close();
  serving?.kill();
});
beforeEach(async () => {
  context = await browser.newContext({ viewport: { width: 1366, height: 768 } });
  page = await context.newPage();
  await open(page);
});
afterEach(() => context.close());

/** @param {import('playwright-core').Page} its */
async function open(its) {
  its.setDefaultTimeout(Patience);
  await its.goto(address);
  // The first run of a learner tells where help is.
  await its.locator('#yes').click();
  await its.locator('.menu').nth(17).waitFor();
  await its.locator('.menu.focused').waitFor();
}

/** @param {string} name */
const surface = (name) => page.locator(`#c-${name}`);

/** Opens the first reading text, which stands below a heading. */
async function openText() {
  await page.locator('#c-but1').click();
  await surface('R1').locator('.current').waitFor();
  await page.keyboard.press('ArrowDown');
  await page.keyboard.press('Enter');
  await surface('R2').locator('.line').first().waitFor();
}

/** Clicks the middle of a word of a surface. @param {string} name @param {string} word */
async function clickWord(name, word) {
  const point = await surface(name).evaluate((element, wanted) => {
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
  await page.mouse.click(point.x, point.y);
}

test('the menu stands, and its captions are right Vietnamese', async () => {
  assert.equal(await page.locator('.menu').count(), 18);
  const captions = await page.locator('.menu').allTextContents();
  for (const caption of captions) assert.match(caption, /^[\p{L}\p{N}\p{P}\p{Zs}]+$/u);
});

test('a text opens, and a click on a word shows its entry', async () => {
  await openText();
  const text = await surface('R2').innerText();
  const word = /\b[a-z]{4,}\b/.exec(text)?.[0] ?? '';
  await clickWord('R2', word);
  await surface('RHD').locator('.line').first().waitFor();
  assert.ok((await surface('RHD').innerText()).length > 0);
  await page.keyboard.press('Escape');
  await surface('RHD').waitFor({ state: 'hidden' });
});

test('a word that is taken is there after a reload', async () => {
  await openText();
  const text = await surface('R2').innerText();
  const word = /\b[a-z]{4,}\b/.exec(text)?.[0] ?? '';
  await clickWord('R2', word);
  await surface('RHD').locator('.line').first().waitFor();
  await page.keyboard.press('Enter');
  await page.getByText('Đã lưu').first().waitFor();
  await page.reload();
  await page.locator('.menu.focused').waitFor();
  await page.locator('#c-but2').click();
  await surface('Rchon').locator('.line').first().waitFor();
  assert.match(await surface('Rchon').innerText(), new RegExp(word));
});

test('a second page on the same files says so', async () => {
  const second = await context.newPage();
  await second.goto(address);
  await second.getByText('Talvora đang chạy rồi').waitFor();
  await second.close();
});

test('without a network the page opens all the same', async () => {
  await page.evaluate(() => navigator.serviceWorker.ready);
  await page.reload();
  await page.locator('.menu.focused').waitFor();
  await context.setOffline(true);
  await page.reload();
  await page.locator('.menu.focused').waitFor();
  assert.equal(await page.locator('.menu').count(), 18);
});
