// The page shows what the desktop program shows: words stand where they stand there, cards end where they
// end there, and both have the colours that they have there. Letters are drawn by two hands, so that single
// pixels are not compared. TALVORA in the environment is the desktop program, PACK the pack of both.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';
import { Place, behindCurtain } from './browser.js';

const Width = 1366;
const Height = 768;
const Near = 2; // pixels
const AlikeColour = 12; // of 255, in each part of a colour
const AlikeInk = 70; // the same of letters, whose thin strokes are mixed with what is behind them
const EdgeReach = 8; // pixels, to either side of where an edge is to be
const LongWord = 4; // letters, from which on a word has enough ink
const places = fileURLToPath(new URL('../../tests/desktop/places.sh', import.meta.url));
const folder = mkdtempSync(join(tmpdir(), 'talvora-pictures-'));

/** @typedef {{x: number, y: number, text: string}} Word the middle of its line, at its middle letter */
/** @typedef {{left: number, top: number, right: number, bottom: number}} Box */
/** @typedef {(x: number, y: number) => number[]} Picture the colour of a pixel */

const place = new Place();
/** @type {import('./browser.js').Learner} */
let learner;
before(async () => {
  const program = process.env.TALVORA ?? '';
  const options = { encoding: /** @type {const} */ ('utf8') };
  execFileSync(places, [program, process.env.PACK ?? '', folder, `${Width}x${Height}`], options);
  learner = await place.learner();
});
after(() => rmSync(folder, { recursive: true }));

/** @param {string} file @returns {Picture} */
function pictureOf(file) {
  const bytes = execFileSync('convert', [file, '-depth', '8', 'rgb:-'], {
    maxBuffer: 4 * Width * Height,
  });
  return (x, y) => {
    const at = 3 * (Math.round(y) * Width + Math.round(x));
    return [...bytes.subarray(at, at + 3)];
  };
}

/** @param {number[]} one @param {number[]} other */
const farness = (one, other) => Math.max(...one.map((part, at) => Math.abs(part - other[at])));

/** What the desktop shows at a place: the words in view of each surface. @param {string} name */
function desktopAt(name) {
  const lines = readFileSync(join(folder, `${name}.trace`), 'utf8').split('\n');
  const state = lines.findLast((line) => line.startsWith('focus=')) ?? '';
  const visible = /visible=,(\S*),/.exec(state)?.[1].split(',') ?? [];
  /** @type {Map<string, Word[]>} */
  const words = new Map();
  for (const surface of visible) {
    const line = lines.findLast((each) => each.startsWith(`words ${surface} `));
    const its = line?.split(' ').slice(2) ?? [];
    words.set(
      surface,
      its.map((each) => {
        const [, x, y, text] = /^(-?\d+),(-?\d+),(.*)$/.exec(each) ?? [];
        return { x: Number(x), y: Number(y), text };
      }),
    );
  }
  return { picture: pictureOf(join(folder, `${name}.png`)), words };
}

/** The words of a surface on the page, with the place and the colour of each. @param {string} name */
const wordsOf = (name) =>
  learner.control(name).evaluate((surface) => {
    const { top, bottom } = surface.getBoundingClientRect();
    const found = [];
    for (const line of surface.querySelectorAll('.line')) {
      const { top: upper, height } = line.getBoundingClientRect();
      const y = upper + height / 2;
      if (y < top || y >= bottom) continue;
      /** @type {{node: Text, at: number, letter: string}[]} */
      const letters = [];
      const walker = document.createTreeWalker(line, NodeFilter.SHOW_TEXT);
      for (let node = walker.nextNode(); node !== null; node = walker.nextNode())
        [...(node.textContent ?? '')].forEach((letter, at) =>
          letters.push({ node: /** @type {Text} */ (node), at, letter }),
        );
      const text = letters.map(({ letter }) => letter).join('');
      const boxOf = (/** @type {number} */ index) => {
        const range = document.createRange();
        const { node, at } = letters[index];
        range.setStart(node, at);
        range.setEnd(node, at + 1);
        return range.getBoundingClientRect();
      };
      for (const { 0: word, index } of text.matchAll(/[^\s\u00a0]+/g)) {
        const middle = index + Math.floor(word.length / 2);
        const { parentElement } = letters[middle].node;
        const { color } = getComputedStyle(/** @type {Element} */ (parentElement));
        const its = letters.slice(index, index + word.length);
        found.push({
          text: word,
          x: (boxOf(middle).left + boxOf(middle).right) / 2,
          inOneLook: its.every(({ node }) => node.parentElement === parentElement),
          covered: !surface.contains(document.elementFromPoint(boxOf(middle).left + 1, y)),
          y,
          color: color.match(/\d+/g)?.slice(0, 3).map(Number) ?? [],
          box: {
            left: boxOf(index).left,
            right: boxOf(index + word.length - 1).right,
            top: upper + height / 4,
            bottom: upper + (3 * height) / 4,
          },
        });
      }
    }
    return found;
  });

/** The colour in a box that is farthest from what is behind it. @param {Picture} picture @param {Box} box @param {number[]} back */
function inkOf(picture, { left, top, right, bottom }, back) {
  let ink = back;
  for (let y = Math.ceil(top); y < bottom; ++y)
    for (let x = Math.ceil(left); x < right; ++x)
      if (farness(picture(x, y), back) > farness(ink, back)) ink = picture(x, y);
  return ink;
}

/** How far from a point, in steps of a pixel, a colour ends. @param {Picture} picture @param {number} x @param {number} y @param {number} dx @param {number} dy @param {number[]} back */
function wayToEdge(picture, x, y, dx, dy, back) {
  for (let step = 0; step <= 2 * EdgeReach; ++step) {
    const [atX, atY] = [x + dx * step, y + dy * step];
    const inside = atX >= 0 && atX < Width && atY >= 0 && atY < Height;
    if (!inside || farness(picture(atX, atY), back) > AlikeColour) return step;
  }
  return 2 * EdgeReach + 1;
}

/** @param {string} name */
async function comparePlace(name) {
  await behindCurtain(() => learner.standing());
  const desktop = desktopAt(name);
  const file = join(folder, `${name}-page.png`);
  writeFileSync(file, await learner.page.screenshot());
  const page = pictureOf(file);
  let compared = 0;
  for (const [surface, words] of desktop.words) {
    const element = learner.control(surface);
    // The hints are set closer than the text that they are.
    if (surface === 'RDOS' || words.length === 0 || !(await element.isVisible())) continue;
    const where = `${name}, ${surface}`;
    const here = await wordsOf(surface);
    assert.deepEqual(
      here.map(({ text }) => text),
      words.map(({ text }) => text),
      where,
    );
    const box = await element.boundingBox();
    assert.ok(box);
    if (here.every(({ covered }) => covered)) continue;
    const inside = [box.x + EdgeReach, box.y + box.height - EdgeReach];
    const back = desktop.picture(inside[0], inside[1]);
    assert.ok(
      farness(page(inside[0], inside[1]), back) <= AlikeColour,
      `${where}: ${back} behind, here ${page(inside[0], inside[1])} at ${inside}`,
    );
    here.forEach((word, at) => {
      const its = words[at];
      const what = `${where}: ${word.text} at ${word.x},${word.y}, there at ${its.x},${its.y}`;
      assert.ok(Math.abs(word.x - its.x) <= Near && Math.abs(word.y - its.y) <= Near, what);
      const letters = word.text.match(/\p{L}/gu) ?? [];
      if (letters.length < LongWord || word.covered || !word.inOneLook) return;
      const ink = inkOf(desktop.picture, word.box, back);
      assert.ok(farness(ink, word.color) <= AlikeInk, `${what}: ${word.color}, there ${ink}`);
      ++compared;
    });
    for (const [x, y, dx, dy] of [
      [box.x + EdgeReach, box.y + box.height / 2, -1, 0],
      [box.x + box.width / 2, box.y + EdgeReach, 0, -1],
    ]) {
      const ways = [page, desktop.picture].map((each) => wayToEdge(each, x, y, dx, dy, back));
      assert.ok(Math.abs(ways[0] - ways[1]) <= Near, `${where}: edges ${ways} from ${x},${y}`);
    }
  }
  return compared;
}

test('the buttons of the menu end where they end on the desktop', async () => {
  await learner.page.mouse.move(Width / 2, Height - 2);
  const desktop = desktopAt('menu').picture;
  const file = join(folder, 'menu-page.png');
  writeFileSync(file, await learner.page.screenshot());
  const page = pictureOf(file);
  for (let number = 2; number <= 18; ++number) {
    const box = await learner.control(`but${number}`).boundingBox();
    assert.ok(box);
    // The colours are other ones each time; a face has one colour from its edge to its caption.
    const y = box.y + box.height / 2;
    for (const [x, dx] of [
      [box.x + EdgeReach, -1],
      [box.x + box.width - EdgeReach, 1],
    ]) {
      const ways = [page, desktop].map((each) => wayToEdge(each, x, y, dx, 0, each(x, y)));
      assert.ok(Math.abs(ways[0] - ways[1]) <= Near, `but${number}: edges ${ways} from ${x},${y}`);
    }
  }
});

test('a list, a text and an entry stand as on the desktop', async () => {
  const { page } = learner;
  await learner.open('but1', 'R1');
  await page.mouse.move(Width / 2, Height - 2);
  assert.ok((await comparePlace('list')) > 4);
  await learner.openFirst('R2');
  assert.ok((await comparePlace('text')) > 4);
  // An entry stands where the pointer is.
  const word = desktopAt('text')
    .words.get('R2')
    ?.find(({ text }) => text === 'word');
  assert.ok(word);
  await page.mouse.click(word.x, word.y);
  await learner.sees('RHD');
  assert.ok((await comparePlace('entry')) > 4);
  await learner.backToMenu();
});

test('a lesson and its items stand as on the desktop', async () => {
  await learner.open('but3', 'RVP1');
  await learner.openFirst('RVP2');
  assert.ok((await comparePlace('lesson')) > 4);
  await learner.backToMenu();
  await learner.open('but3', 'RVP1');
  for (const key of ['Control+Home', 'ArrowDown', 'Shift+F10', 'Enter']) await learner.key(key);
  await learner.at('RDT');
  await learner.sees('RDT');
  assert.ok((await comparePlace('item')) > 4);
  await learner.page.keyboard.type('goes');
  await learner.key('Enter');
  await learner.page.locator('#told', { hasText: 'Đúng 1 trên 2 chỗ' }).waitFor();
  assert.ok((await comparePlace('judged')) > 4);
  await learner.key('Enter');
  await learner.at('RABCD');
  await learner.sees('RABCD');
  assert.ok((await comparePlace('choice')) > 4);
  await learner.backToMenu();
});

test('the settings stand as on the desktop', async () => {
  await learner.open('but8', 'RAmthanh');
  await learner.sees('RAmthanh');
  assert.ok((await comparePlace('settings')) > 4);
  await learner.close();
});
