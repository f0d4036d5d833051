// Measures the browser front on a site beside the limits that it has, and prints a table.
import { execFileSync } from 'node:child_process';
import { existsSync, readdirSync, statSync } from 'node:fs';
import { connect, createServer } from 'node:net';
import { join } from 'node:path';
import { chromium } from 'playwright-core';
import { wordsIn } from './inpage.js';
import { serve } from './serving.js';

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
const HoldMs = 60; // that a learner's finger keeps a button down
const LongMs = 3000;

/** @param {number[]} values @param {number} part */
const quantile = (values, part) =>
  [...values].sort((one, other) => one - other)[Math.ceil(part * values.length) - 1];

/** @type {string[][]} */
const rows = [['what', 'measured', 'limit']];
/** @param {string} what @param {number} value @param {string} unit @param {number} [limit] */
const row = (what, value, unit, limit) =>
  rows.push([
    what,
    `${Math.round(value * 100) / 100} ${unit}`,
    limit === undefined ? '' : `${limit} ${unit}`,
  ]);

const serving = await serve(site);
let isSlow = false;
/** When the line is free again. */
let freeAt = 0;
/** All connections share the line, whoever of the browser's workers opens them. */
const line = createServer((client) => {
  const server = connect(Number(new URL(serving.address).port), '127.0.0.1');
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

/** Has a page note the milliseconds from an event to the frame that shows what came of it. */
function watch() {
  const times = /** @type {Record<string, number[]>} */ ({});
  Object.assign(globalThis, { times });
  /** @param {string} kind @param {string} control */
  const measure = (kind, control) => {
    times[kind] = [];
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
            channel.port1.onmessage = () => times[kind].push(performance.now() - from);
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
  measure('pointerup', '#c-RHD');
  measure('keydown', '#c-RTD');
}

/** What was noted of a kind of event since this was last asked. @param {import('playwright-core').Page} page @param {string} kind */
const noted = (page, kind) =>
  page.evaluate((its) => {
    const times = Reflect.get(globalThis, 'times');
    const taken = times[its];
    for (const each of Object.keys(times)) times[each] = [];
    return /** @type {number[]} */ (taken);
  }, kind);

/**
 * Looks words of the open text up; gives the milliseconds of each, from one half of the click on.
 * @param {import('playwright-core').Page} page
 * @param {{x: number, y: number}[]} points
 * @param {number} holdMs how long the button is down
 * @param {'pointerdown' | 'pointerup'} half
 */
async function lookUps(page, points, holdMs, half) {
  const times = /** @type {number[]} */ ([]);
  for (const { x, y } of points) {
    // A learner's pointer stands on a word before it is pressed.
    await page.mouse.move(x, y);
    await page.waitForTimeout(SettleMs);
    await noted(page, half);
    await page.mouse.down();
    if (holdMs > 0) await page.waitForTimeout(holdMs);
    await page.mouse.up();
    // An entry may close by itself before it is seen here.
    const entry = page.locator('#c-RHD .line').first();
    await entry.waitFor({ timeout: LongMs }).catch(() => undefined);
    await page.waitForTimeout(SettleMs);
    times.push(...(await noted(page, half)).slice(0, 1));
    if (await page.locator('#c-RHD').isVisible()) await page.keyboard.press('Escape');
    await page.locator('#c-RHD').waitFor({ state: 'hidden' });
    if (await page.locator('#c-R1.focused').isVisible()) await page.keyboard.press('Enter');
    await page.locator('#c-R2.focused').waitFor();
  }
  return times;
}

/** @param {string} what @param {number[]} times @param {number} [limit] */
function reaction(what, times, limit) {
  row(`${what}, middle`, quantile(times, 0.5), 'ms', limit);
  row(`${what}, 95th of 100`, quantile(times, 0.95), 'ms', limit);
}

async function reactions() {
  const context = await browser.newContext({ viewport: { width: 1366, height: 768 } });
  const page = await onMenu(context);
  await page.evaluate(watch);
  await page.locator('#c-but1').click();
  await page.locator('#c-R1.focused').waitFor();
  // Below the text to practise with and a heading stands the first that is English throughout.
  for (let line = 0; line < 3; ++line) await page.keyboard.press('ArrowDown');
  await page.keyboard.press('Enter');
  await page.locator('#c-R2.focused').waitFor();
  await page.locator('#waiting').waitFor({ state: 'hidden' });
  // The curtain is open.
  await page.waitForFunction(() =>
    [...document.querySelectorAll('.panel')].every((each) => !each.checkVisibility()),
  );
  const lines = page.locator('#c-R2 .line:lang(en)');
  const words = await lines.evaluateAll(wordsIn, '\\b[a-z]{4,}\\b');
  const points = Array.from({ length: 4 * Rounds }, (_, at) => words[at % words.length]);
  // What shows an entry is made with the first one, so that nobody can watch that.
  await lookUps(page, points.slice(0, 1), HoldMs, 'pointerup');
  reaction('click to entry', await lookUps(page, points, HoldMs, 'pointerup'), 16);
  reaction('click without a pause to entry', await lookUps(page, points, 0, 'pointerdown'));
  const keys = /** @type {number[]} */ ([]);
  await page.keyboard.press('s');
  await page.locator('#c-RTD .line').first().waitFor();
  await noted(page, 'keydown');
  for (let round = 0; round < 4 * Rounds; ++round) {
    await page.keyboard.press(round % 8 < 4 ? 'tree'[round % 8] : 'Backspace');
    await page.waitForTimeout(60);
    keys.push(...(await noted(page, 'keydown')));
  }
  reaction('key to look-up list', keys, 16);
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
  row('recordings and other voices besides', recordings / 1e6, 'MB');
}

bytes();
await visits();
await reactions();
await browser.close();
line.close();
serving.end();
for (const [what, measured, limit] of rows)
  console.log(`${what.padEnd(40)}${measured.padStart(12)}${limit.padStart(12)}`);
