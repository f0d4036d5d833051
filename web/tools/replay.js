// Holds the driver in node against the driver of this machine: both replay the commands of the scenarios,
// in turn, and must give the same replies.
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';

const Usage = `usage: node replay.js NATIVE WEB PACK [ROUNDS]
Replays the commands of the scenarios through two builds of the driver, in turn, and prints the processor
time that each takes, and of that what its start takes.
  NATIVE  talvora-driver of this machine
  WEB     the one that runs in node: build/web/web/driver/talvora-driver
  PACK    that of the scenarios; the replies of a whole course are longer than node's longest text
  ROUNDS  how often; 7 unless told`;
const Escapes = 12;
const Repeats = 40;
const scenarios = fileURLToPath(new URL('../../tests/scenarios', import.meta.url));

const [native = '', web = '', pack = '', rounds = '7', ...rest] = process.argv.slice(2);
if (['-h', '--help'].includes(native)) {
  console.log(Usage);
  process.exit(0);
}
if (pack === '' || rest.length > 0 || !/^[1-9]\d*$/.test(rounds)) {
  console.error(Usage);
  process.exit(2);
}

/** The commands of a scenario that needs nothing set up and does not end the program. @param {string} file */
function commandsOf(file) {
  const lines = readFileSync(join(scenarios, file), 'utf8').trim().split('\n');
  const steps = lines.map((line) => JSON.parse(line));
  const isPlain = steps.every((step) => 'do' in step && step.do !== 'close' && step.with !== 'yes');
  const commands = isPlain ? steps.filter((step) => step.do !== 'start') : [];
  for (const each of commands) for (const own of ['expect', 'expect_log', 'note']) delete each[own];
  return commands;
}

/** All of them, each from the menu, where Esc asks for the end: that is answered with no. */
function session() {
  const back = Array(Escapes).fill({ do: 'key', key: 'Esc' });
  const files = readdirSync(scenarios).filter((file) => file.endsWith('.jsonl'));
  const once = files
    .sort()
    .flatMap((file) => [...commandsOf(file), ...back])
    .flatMap((each) => (each.key === 'Esc' ? [{ do: 'answer', with: 'no' }, each] : [each]));
  return [{ do: 'start' }, ...Array(Repeats).fill(once).flat()];
}

const folder = mkdtempSync(join(tmpdir(), 'talvora-replay-'));
const commands = session();
writeFileSync(join(folder, 'all'), commands.map((each) => `${JSON.stringify(each)}\n`).join(''));
writeFileSync(join(folder, 'start'), `${JSON.stringify(commands[0])}\n`);

/** The seconds of the processor that a driver takes for some commands. @param {string} driver @param {string} input */
function secondsOf(driver, input) {
  const learner = mkdtempSync(join(folder, 'learner-'));
  // Not the first time.
  writeFileSync(join(learner, 'Yes1'), '');
  const script = 'TIMEFORMAT="%U %S"; { time "$1" --dir "$2" --learner "$3" <"$4" >"$5"; } 2>&1';
  const replies = join(folder, `${input}-${driver === native ? 'native' : 'web'}`);
  const words = ['-c', script, 'bash', driver, pack, learner, join(folder, input), replies];
  const times = execFileSync('bash', words, { encoding: 'utf8' });
  return times
    .trim()
    .split(' ')
    .reduce((sum, each) => sum + Number(each), 0);
}

/** @param {number[]} values */
const middle = (values) =>
  [...values].sort((one, other) => one - other)[Math.floor(values.length / 2)];

const times = { all: /** @type {number[][]} */ ([]), start: /** @type {number[][]} */ ([]) };
for (let round = 0; round < Number(rounds); ++round)
  for (const input of /** @type {const} */ (['start', 'all']))
    times[input].push([native, web].map((driver) => secondsOf(driver, input)));
const replies = ['native', 'web'].map((each) => readFileSync(join(folder, `all-${each}`), 'utf8'));
rmSync(folder, { recursive: true });
if (replies[0] !== replies[1]) {
  console.error('The replies differ.');
  process.exit(1);
}
const failed = replies[0].split('\n').filter((line) => line.includes('"ok":false')).length;

/** @param {string} what @param {number[][]} pairs seconds of both */
function tell(what, pairs) {
  const [here, there] = [0, 1].map((at) => middle(pairs.map((pair) => pair[at])));
  const ratio = middle(pairs.map(([one, other]) => other / one));
  const cells = [here.toFixed(2), there.toFixed(2), ratio.toFixed(2)];
  console.log(what.padEnd(40) + cells.map((cell) => cell.padStart(10)).join(''));
}
console.log(
  `${commands.length} commands, ${failed} of them refused`.padEnd(40),
  'native   in node     ratio',
);
tell('start', times.start);
tell('start and commands, s', times.all);
tell(
  'commands alone, s',
  times.all.map((pair, round) => pair.map((each, at) => each - times.start[round][at])),
);
