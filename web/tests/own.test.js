// The learner's files in a store that is killed, full, or gone.
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { MemoryPlace, OwnFiles } from '../page/own.js';

/** @param {string} text */
const bytes = (text) => new TextEncoder().encode(text);
/** @param {OwnFiles} files @param {string} name */
const textOf = (files, name) => new TextDecoder().decode(files.files.get(name)?.bytes);

/** A place that takes so many bytes in all and no more. */
class FullPlace extends MemoryPlace {
  /** @param {number} room */
  constructor(room) {
    super();
    this.most = room;
  }
  /** @param {Uint8Array} from @param {{at: number}} options */
  write(from, { at }) {
    if (at + from.length > this.most) throw new Error('QuotaExceededError');
    return super.write(from, { at });
  }
}

/** @param {MemoryPlace[]} logs */
const copyOf = (logs) =>
  logs.map((log) => {
    const copy = new MemoryPlace();
    copy.write(log.bytes, { at: 0 });
    return copy;
  });

const places = () => [new MemoryPlace(), new MemoryPlace()];

test('what was written is there when the store is opened again', () => {
  const logs = places();
  const files = new OwnFiles(logs);
  files.create('data.c');
  files.write('data.c', 0, bytes('one'));
  files.write('data.c', 3, bytes(' two'));
  files.create('data.c.new');
  files.write('data.c.new', 0, bytes('three'));
  const again = new OwnFiles(logs);
  assert.deepEqual(again.list().sort(), ['data.c', 'data.c.new']);
  assert.equal(textOf(again, 'data.c'), 'one two');
  again.rename('data.c.new', 0, bytes('data.c'));
  again.truncate('data.c', 2);
  const third = new OwnFiles(logs);
  assert.deepEqual(third.list(), ['data.c']);
  assert.equal(textOf(third, 'data.c'), 'th');
});

test('a log that is cut at any byte gives a state that once was', () => {
  const logs = places();
  const files = new OwnFiles(logs);
  /** @type {Set<string>} */
  const states = new Set();
  const stateOf = (/** @type {OwnFiles} */ its) =>
    JSON.stringify(its.list().map((name) => [name, textOf(its, name)]));
  const note = () => states.add(stateOf(files));
  note();
  for (const deed of [
    () => files.create('words'),
    () => files.write('words', 0, bytes('abc')),
    () => files.create('new'),
    () => files.write('new', 0, bytes('abcdef')),
    () => files.rename('new', 0, bytes('words')),
    () => files.remove('words'),
  ]) {
    deed();
    note();
  }
  const whole = logs[files.current].bytes.slice();
  for (let length = 12; length <= whole.length; ++length) {
    const cut = new MemoryPlace();
    cut.write(whole.subarray(0, length), { at: 0 });
    const opened = new OwnFiles(
      files.current === 0 ? [cut, new MemoryPlace()] : [new MemoryPlace(), cut],
    );
    assert.ok(states.has(stateOf(opened)), `cut at ${length}: ${stateOf(opened)}`);
    // It goes on from there.
    assert.equal(opened.create('later'), 0);
    assert.ok(new OwnFiles(opened.logs).list().includes('later'));
  }
});

test('a byte that was spoilt ends the log there', () => {
  const logs = places();
  const files = new OwnFiles(logs);
  files.create('a');
  const good = files.end;
  files.create('b');
  logs[files.current].room[good + 2] ^= 0xff;
  assert.deepEqual(new OwnFiles(copyOf(logs)).list(), ['a']);
});

test('a log that has grown is written anew, and nothing is lost', () => {
  const logs = places();
  const files = new OwnFiles(logs);
  files.create('data.c');
  const block = new Uint8Array(5000).fill(7);
  for (let time = 0; time < 200; ++time) files.write('data.c', 0, block);
  assert.ok(files.end < 600_000, `${files.end} bytes`);
  const again = new OwnFiles(logs);
  assert.deepEqual(again.files.get('data.c')?.bytes, block);
});

test('a store that is full says so and keeps what was there', () => {
  const logs = [new FullPlace(400), new FullPlace(400)];
  const files = new OwnFiles(logs);
  files.create('data.c');
  assert.equal(files.write('data.c', 0, bytes('kept')), 0);
  assert.equal(files.write('data.c', 0, new Uint8Array(1000)), -1);
  assert.equal(textOf(files, 'data.c'), 'kept');
  assert.equal(files.write('data.c', 4, bytes(' too')), 0);
  assert.equal(textOf(new OwnFiles(logs), 'data.c'), 'kept too');
});

test('files are replaced all together or not at all', () => {
  const logs = [new FullPlace(400), new FullPlace(400)];
  const files = new OwnFiles(logs);
  files.create('data.c');
  files.write('data.c', 0, bytes('mine'));
  assert.equal(files.rewrite(new Map([['words', { bytes: new Uint8Array(1000) }]])), -1);
  assert.equal(textOf(new OwnFiles(logs), 'data.c'), 'mine');
  assert.equal(files.rewrite(new Map([['words', { bytes: bytes('theirs') }]])), 0);
  assert.deepEqual(files.list(), ['words']);
  assert.equal(textOf(new OwnFiles(logs), 'words'), 'theirs');
});
