// The benchmark tells how it is used, and refuses what is no site.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { tmpdir } from 'node:os';
import { test } from 'node:test';
import { fileURLToPath } from 'node:url';

const bench = fileURLToPath(new URL('../tools/bench.js', import.meta.url));
const run = (/** @type {string[]} */ ...words) =>
  spawnSync(process.execPath, [bench, ...words], { encoding: 'utf8' });

test('it tells how it is used', () => {
  for (const word of ['-h', '--help']) {
    const { status, stdout } = run(word);
    assert.equal(status, 0);
    assert.match(stdout, /^usage: node bench\.js SITE \[ROUNDS\]\n/);
  }
});

test('what is no site is refused, and why is told', () => {
  for (const [words, fault] of /** @type {[string[], RegExp][]} */ ([
    [[], /One folder is to be named/],
    [[tmpdir()], /no site, it has no index\.html/],
    [['/nowhere'], /\/nowhere: no site/],
    [[tmpdir(), 'many'], /many: not a number of rounds/],
    [[tmpdir(), '0'], /0: not a number of rounds/],
    [[tmpdir(), '3', 'more'], /One folder is to be named/],
  ])) {
    const { status, stderr } = run(...words);
    assert.equal(status, 2);
    assert.match(stderr, fault);
    assert.match(stderr, /usage:/);
  }
});
