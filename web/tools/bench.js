// Measures the browser front on a site beside the limits that it has, and prints a table.
import { execFileSync, spawn } from 'node:child_process';
import { existsSync, readdirSync, statSync } from 'node:fs';
import { connect, createServer } from 'node:net';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const Usage = `usage: node bench.js SITE [ROUNDS]
Measures the browser front beside its limits, in Chromium without a window, and prints a table.
  SITE    the folder that site.py has put together; ./run --web makes build/site
  ROUNDS  visits that are measured, and a quarter of the clicks and keys; 15 unless told
CHROMIUM in the environment is another browser than /usr/bin/chromium.`;

/** @param {string} fault */
function refuse(fault) {
  console.error(`${fault}\n${Usage}`);
  process.exit(2);
}

const [site = '', rounds = '15', ...rest] = process.argv.slice(2);
const Rounds = Number(rounds);
if (['-h', '--help'].includes(site)) {
  console.log(Usage);
  process.exit(0);
}
if (site === '' || rest.length > 0) refuse('One folder is to be named.');
if (!Number.isInteger(Rounds) || Rounds < 1) refuse(`${rounds}: not a number of rounds`);
for (const file of ['index.html', 'talvora.wasm', 'pack/pack.json'])
  if (!existsSync(join(site, file))) refuse(`${site}: no site, it has no ${file}`);
/** A line of 10 Mbit/s: bytes a millisecond, and how long one is on its way. */
const Rate = 1250;
const LatencyMs = 20;
const Ahead = 1 << 16;
const Patience = 120_000;
const SettleMs = 100;
const LongMs = 3000;
const here = dirname(fileURLToPath(import.meta.url));

/** @param {number[]} values @param {number} part */
const quantile = (values, part) =>
  [...values].sort((one, other) => one - other)[Math.ceil(part * values.length) - 1];

/** @type {string[][]} */
const rows = [['what', 'measured', 'limit']];
/** @param {string} what @param {number} value @param {string} unit @param {number} limit */
const row = (what, value, unit, limit) =>
  rows.push([what, `${Math.round(value * 100) / 100} ${unit}`, `${limit} ${unit}`]);

const serving = spawn(process.execPath, [join(here, 'serve.js'), site, '0']);
const address = await new Promise((resolve) =>
  serving.stdout.once('data', (line) => resolve(String(line).trim())),
);
let isSlow = false;
/** When the line is free again. */
let freeAt = 0;
/** All connections share the line, whoever of the browser's workers opens them. */
const line = createServer((client) => {
  const server = connect(Number(new URL(address).port), '127.0.0.1');
  let waiting = 0;
  let order = Promise.resolve();
  client.on('data', (part) => server.write(part));
  server.on('data', (part) => {
    const now = performance.now();
    freeAt = Math.max(freeAt, now) + (isSlow ? part.length / Rate : 0);
    waiting += part.length;
    if (waiting > Ahead) server.pause();
    const pass = () => {
      client.write(part);
      waiting -= part.length;
      if (waiting <= Ahead) server.resume();
    };
    // What comes when the line is fast again stays behind what is still on its way.
    const due = isSlow ? freeAt + LatencyMs : now;
    order = order
      .then(() => new Promise((resolve) => setTimeout(resolve, due - performance.now())))
      .then(pass);
  });
  for (const [one, other] of [
    [client, server],
    [server, client],
  ]) {
    one.on('error', () => other.destroy());
    one.on('close', () => other.destroy());
  }
});
await new Promise((resolve) => line.listen(0, '127.0.0.1', () => resolve(undefined)));
const { port } = /** @type {import('node:net').AddressInfo} */ (line.address());
const slowAddress = `http://localhost:${port}/`;

const browser = await chromium.launch({
  executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
  args: ['--no-sandbox'],
});

/** Opens the page; gives the milliseconds until the menu, or the first run's greeting, can be used. */
async function open(/** @type {import('playwright-core').Page} */ page) {
  const from = performance.now();
  await page.goto(slowAddress, { timeout: Patience });
  await page.locator('#yes:visible, .menu.focused').first().waitFor({ timeout: Patience });
  return performance.now() - from;
}

/** @param {import('playwright-core').BrowserContext} context */
async function onMenu(context) {
  const page = await context.newPage();
  await open(page);
  await page.locator('#yes').click();
  await page.locator('.menu.focused').waitFor();
  return page;
}

async function visits() {
  const context = await browser.newContext({ viewport: { width: 1366, height: 768 } });
  const page = await context.newPage();
  isSlow = true;
  row('first visit to the menu, 10 Mbit/s', (await open(page)) / 1000, 's', 6);
  await page.locator('#yes').click();
  await page.evaluate(() => navigator.serviceWorker.ready);
  isSlow = false;
  await page.locator('[data-kept]').waitFor({ timeout: Patience });
  await page.close();
  /** @type {number[]} */
  const again = [];
  for (let round = 0; round < Rounds; ++round) {
    const next = await context.newPage();
    again.push(await open(next));
    await next.close();
    await new Promise((resolve) => setTimeout(resolve, 300));
  }
  row('next visits, middle', quantile(again, 0.5), 'ms', 500);
  await context.close();
}

/** Milliseconds from an event to the frame that shows what came of it. */
async function reactions() {
  const context = await browser.newContext({ viewport: { width: 1366, height: 768 } });
  const page = await onMenu(context);
  await page.evaluate(() => {
    /** @type {number[]} */
    const times = [];
    Object.assign(globalThis, { times });
    /** @param {string} kind @param {string} control */
    const measure = (kind, control) => {
      addEventListener(
        kind,
        (event) => {
          const from = event.timeStamp;
          const element = document.querySelector(control);
          if (element === null) return;
          const seen = new MutationObserver(() => {
            seen.disconnect();
            // The frame that is being made now shows it.
            requestAnimationFrame(() => {
              const channel = new MessageChannel();
              channel.port1.onmessage = () => times.push(performance.now() - from);
              channel.port2.postMessage(0);
            });
          });
          seen.observe(element, { childList: true, subtree: true, attributes: true });
          setTimeout(() => seen.disconnect(), 400);
        },
        { capture: true },
      );
    };
    measure('pointerdown', '#c-RHD');
    measure('keydown', '#c-RTD');
  });
  const taken = () => page.evaluate(() => Reflect.get(globalThis, 'times').splice(0));
  await page.locator('#c-but1').click();
  await page.locator('#c-R1.focused').waitFor();
  // Below the text to practise with and a heading stands the first that is English throughout.
  for (let line = 0; line < 3; ++line) await page.keyboard.press('ArrowDown');
  await page.keyboard.press('Enter');
  await page.locator('#c-R2.focused').waitFor();
  await page.locator('#waiting').waitFor({ state: 'hidden' });
  await taken();
  const points = await page.locator('#c-R2').evaluate((surface) => {
    /** @type {{x: number, y: number}[]} */
    const found = [];
    for (const line of surface.querySelectorAll('.line:lang(en)')) {
      const walker = document.createTreeWalker(line, NodeFilter.SHOW_TEXT);
      for (let node = walker.nextNode(); node !== null; node = walker.nextNode())
        for (const { 0: word, index } of (node.textContent ?? '').matchAll(/\b[a-z]{4,}\b/g)) {
          const range = document.createRange();
          range.setStart(node, index);
          range.setEnd(node, index + word.length);
          const { x, y, width, height } = range.getBoundingClientRect();
          found.push({ x: x + width / 2, y: y + height / 2 });
        }
    }
    return found;
  });
  /** @type {number[]} */
  const clicks = [];
  for (let round = 0; round < 4 * Rounds; ++round) {
    const { x, y } = points[round % points.length];
    // A learner's pointer stands on a word before it is pressed.
    await page.mouse.move(x, y);
    await page.waitForTimeout(SettleMs);
    await taken();
    await page.mouse.down();
    await page.mouse.up();
    // An entry may close by itself before it is seen here.
    const entry = page.locator('#c-RHD .line').first();
    await entry.waitFor({ timeout: LongMs }).catch(() => undefined);
    await page.waitForTimeout(SettleMs);
    const [time] = await taken();
    if (time !== undefined && round > 0) clicks.push(time);
    if (await page.locator('#c-RHD').isVisible()) await page.keyboard.press('Escape');
    await page.locator('#c-RHD').waitFor({ state: 'hidden' });
    if (await page.locator('#c-R1.focused').isVisible()) await page.keyboard.press('Enter');
    await page.locator('#c-R2.focused').waitFor();
    await taken();
  }
  row('click to entry painted, middle', quantile(clicks, 0.5), 'ms', 16);
  row('click to entry painted, 95th of 100', quantile(clicks, 0.95), 'ms', 16);
  /** @type {number[]} */
  const keys = [];
  await page.keyboard.press('s');
  await page.locator('#c-RTD .line').first().waitFor();
  await taken();
  for (let round = 0; round < 4 * Rounds; ++round) {
    await page.keyboard.press(round % 8 < 4 ? 'tree'[round % 8] : 'Backspace');
    await page.waitForTimeout(60);
    keys.push(...(await taken()));
  }
  row('key to look-up list painted, middle', quantile(keys, 0.5), 'ms', 16);
  row('key to look-up list painted, 95th of 100', quantile(keys, 0.95), 'ms', 16);
  await context.close();
}

/** What travels: the page's files compressed as a web server does, the pack as it is. */
function bytes() {
  let page = 0;
  let pack = 0;
  let recordings = 0;
  for (const path of /** @type {string[]} */ (readdirSync(site, { recursive: true }))) {
    const file = join(site, path);
    if (!statSync(file).isFile()) continue;
    if (/^pack.(sound-|rms|awb)/.test(path)) recordings += statSync(file).size;
    else if (path.startsWith('pack/')) pack += statSync(file).size;
    else page += execFileSync('gzip', ['-9', '-c', file], { maxBuffer: 1 << 28 }).length;
  }
  row('page, program and faces', page / 1e6, 'MB', 15);
  row('and the pack with its voice', (page + pack) / 1e6, 'MB', 15);
  rows.push([
    'recordings and other voices besides',
    `${Math.round(recordings / 1e4) / 100} MB`,
    '',
  ]);
}

bytes();
await visits();
await reactions();
await browser.close();
line.close();
serving.kill();
for (const [what, measured, limit] of rows)
  console.log(`${what.padEnd(40)}${measured.padStart(12)}${limit.padStart(12)}`);
