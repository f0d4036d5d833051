// What the learner owns goes from the browser to the desktop program's folder and back.
// TALVORA_PACK in the environment is the desktop's tool, PACK the folder of the course.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, test } from 'node:test';
import { broughtBy, carriedOut, joined } from '../page/carry.js';
import { Place } from './browser.js';

const folder = mkdtempSync(join(tmpdir(), 'talvora-carry-'));
const tool = (/** @type {string[]} */ ...words) =>
  execFileSync(process.env.TALVORA_PACK ?? '', words, { encoding: 'utf8' });
const record = (/** @type {string} */ word) =>
  new TextEncoder().encode(word.padEnd(20) + '\0\0\0\0');

const place = new Place();
after(() => rmSync(folder, { recursive: true }));

test('an archive that another program packed is taken, and of it only what is a learner’s', async () => {
  const file = join(folder, 'packed.zip');
  const script = `import sys, zipfile
with zipfile.ZipFile(sys.argv[1], "w", zipfile.ZIP_DEFLATED) as out:
    out.writestr("data.c", sys.argv[2] * 51 + "\\0\\0\\0\\0")
    for name in ("../data.c", "/data.c", "texts/../data.c", "texts/001.txt", "backups/x/data.c"):
        out.writestr(name, "x")`;
  execFileSync('python3', ['-c', script, file, 'a'.repeat(10)]);
  const files = await broughtBy(new Blob([readFileSync(file)]));
  assert.equal(files, undefined, 'no whole records');
  execFileSync('python3', ['-c', script.replace('51', '2'), file, 'a'.repeat(10)]);
  const taken = await broughtBy(new Blob([readFileSync(file)]));
  assert.deepEqual([...(taken?.keys() ?? [])], ['data.c', 'texts/001.txt']);
});

test('damage is told or changes nothing', async () => {
  const files = new Map([['data.c', record('bank')]]);
  const whole = new Uint8Array(await carriedOut(files).arrayBuffer());
  for (let at = 0; at < whole.length; ++at) {
    const spoilt = whole.slice();
    spoilt[at] ^= 0xff;
    const taken = await broughtBy(new Blob([spoilt]));
    if (taken !== undefined) assert.deepEqual(taken.get('data.c'), record('bank'), `byte ${at}`);
    assert.equal(await broughtBy(new Blob([whole.subarray(0, at)])), undefined, `cut at ${at}`);
  }
});

test('what was there becomes a copy beside those that there are', () => {
  const came = new Map([['data.c', record('bank')]]);
  const here = new Map([
    ['data.c', record('river')],
    ['texts/001.txt', record('mine')],
    ['backups/2026-03-31_18-05-09/data.c', record('field')],
  ]);
  const files = joined(came, here);
  assert.deepEqual(files.get('data.c'), record('bank'));
  assert.ok(!files.has('texts/001.txt'));
  const copies = [...files].filter(([name]) => name.startsWith('backups/')).sort();
  assert.deepEqual(
    copies.map(([, bytes]) => bytes),
    [record('field'), record('river')],
  );
});

test('words go to the desktop and come back', async () => {
  const learner = await place.learner();
  await learner.openText();
  const word = await learner.takeWord();
  await learner.backToMenu();
  await learner.page.locator('#carryOpen').click();
  const download = learner.page.waitForEvent('download');
  await learner.page.locator('#carryOut').click();
  const out = join(folder, 'out.zip');
  await (await download).saveAs(out);
  const desktop = join(folder, 'desktop');
  assert.match(tool('folder', 'import', out, '--learner', desktop), /1 word received/);
  assert.match(tool('words', 'list', '--learner', desktop), new RegExp(`${word}\\tA Small Guide`));
  await learner.close();

  const list = join(folder, 'list.txt');
  writeFileSync(list, 'bank\n');
  tool('words', 'import', list, '--pack', process.env.PACK ?? '', '--learner', desktop);
  const back = join(folder, 'back.zip');
  tool('folder', 'export', back, '--learner', desktop);
  const other = await place.learner();
  await other.page.locator('#carryOpen').click();
  const nothing = join(folder, 'nothing.zip');
  writeFileSync(nothing, 'no archive');
  await other.page.locator('#carryFile').setInputFiles(nothing);
  await other.page.getByText('Không có gì thay đổi').waitFor();
  await other.page.locator('#carryFile').setInputFiles(back);
  await other.page.getByText('Tệp có 2 từ').waitFor();
  await other.page.locator('#carryTake').click();
  await other.page.locator('#carry').waitFor({ state: 'hidden' });
  await other.onMenu();
  await other.findInVocabulary('bank', word);
  await other.close();
});
