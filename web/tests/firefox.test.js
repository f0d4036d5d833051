// The page in Firefox: it opens, a word is looked up and kept, and is there after a reload.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import puppeteer from 'puppeteer-core';

const Patience = 60_000;
const server = fileURLToPath(new URL('../tools/serve.js', import.meta.url));

/** @type {import('node:child_process').ChildProcess} */
let serving;
/** @type {import('puppeteer-core').Browser} */
let browser;
let address = '';
before(async () => {
  serving = spawn(process.execPath, [server, process.env.SITE ?? '', '0']);
  address = await new Promise((resolve) =>
    serving.stdout?.once('data', (line) => resolve(String(line).trim())),
  );
  browser = await puppeteer.launch({
    browser: 'firefox',
    executablePath: process.env.FIREFOX ?? '/usr/bin/firefox',
    headless: true,
    timeout: Patience,
  });
});
after(async () => {
  await browser?.close();
  serving?.kill();
});

test('a text opens, a click shows an entry, and the word is kept', async () => {
  const page = await browser.newPage();
  page.setDefaultTimeout(Patience);
  await page.setViewport({ width: 1366, height: 768 });
  await page.goto(address);
  const seen = (/** @type {string} */ what) => page.waitForSelector(what, { visible: true });
  await (await seen('#yes'))?.click();
  await seen('.menu.focused');
  assert.equal((await page.$$('.menu')).length, 18);
  await (await seen('#c-but1'))?.click();
  await seen('#c-R1.focused');
  await page.keyboard.press('ArrowDown');
  await page.keyboard.press('Enter');
  await seen('#c-R2.focused');
  await seen('#c-R2 .line');
  const point = await page.$eval('#c-R2', (surface) => {
    const walker = document.createTreeWalker(surface, NodeFilter.SHOW_TEXT);
    for (let node = walker.nextNode(); node !== null; node = walker.nextNode()) {
      const at = (node.textContent ?? '').search(/\bword\b/);
      if (at < 0) continue;
      const range = document.createRange();
      range.setStart(node, at);
      range.setEnd(node, at + 4);
      const { x, y, width, height } = range.getBoundingClientRect();
      return { x: x + width / 2, y: y + height / 2 };
    }
    return { x: 0, y: 0 };
  });
  await page.mouse.click(point.x, point.y);
  await seen('#c-RHD .line');
  await page.keyboard.press('Enter');
  await page.waitForFunction(() =>
    document.querySelector('#typed')?.textContent?.includes('Đã lưu: word'),
  );
  await page.reload();
  await seen('.menu.focused');
  await (await seen('#c-but2'))?.click();
  await seen('#c-Rchon .line');
  assert.match(await page.$eval('#c-Rchon', (its) => its.textContent ?? ''), /word/);
});
