// The events that the page tells the core, through memory that both see: the core takes them also
// while it waits.

export const Fields = 6;
export const Room = 1024; // events
const Written = 0;
const Taken = 1;
const IsGone = 2;
export const Head = 4;

export const Kind = Object.freeze({
  Move: 1,
  Press: 2,
  Release: 3,
  Wheel: 4,
  KeyDown: 5,
  KeyUp: 6,
  Answer: 7,
  Close: 8,
  Hidden: 9,
  Blur: 10,
  Carry: 11,
});

/** Places of what sounds, in memory of their own. */
export const Sounds = Object.freeze({
  Speaking: 0,
  Playing: 1,
  SpeechTurn: 2,
  WaveTurn: 3,
  All: 4,
});

/** @returns {SharedArrayBuffer} */
export function makeRing() {
  return new SharedArrayBuffer((Head + Room * Fields) * Int32Array.BYTES_PER_ELEMENT);
}

/** Puts an event into the ring; one for which there is no room is lost. @param {Int32Array} ring @param {number[]} event */
export function put(ring, event) {
  const written = Atomics.load(ring, Written);
  if (written - Atomics.load(ring, Taken) >= Room) return;
  const place = Head + (written % Room) * Fields;
  for (let field = 0; field < Fields; ++field) ring[place + field] = event[field] ?? 0;
  Atomics.store(ring, Written, written + 1);
  Atomics.notify(ring, Written);
}

/**
 * Takes the next event out of the ring; 0 when there is none.
 * @param {Int32Array} ring
 * @param {Int32Array} into
 * @param {number} at
 * @returns {number}
 */
export function take(ring, into, at) {
  const taken = Atomics.load(ring, Taken);
  if (taken === Atomics.load(ring, Written)) return 0;
  const place = Head + (taken % Room) * Fields;
  for (let field = 0; field < Fields; ++field) into[at + field] = ring[place + field];
  Atomics.store(ring, Taken, taken + 1);
  return 1;
}

/** What ends the core's wait for a page that has gone. */
export const Gone = new Error('The page has gone');

/** Ends the core: a worker that waits is not ended otherwise, and keeps the learner's files for seconds. @param {Int32Array} ring */
export function leave(ring) {
  Atomics.store(ring, IsGone, 1);
  Atomics.notify(ring, Written);
}

/**
 * Returns when something is in the ring or the time is over; less than 0 waits for ever. Throws `Gone` when
 * nothing will come any more.
 * @param {Int32Array} ring
 * @param {number} ms
 */
export function wait(ring, ms) {
  const taken = Atomics.load(ring, Taken);
  if (taken !== Atomics.load(ring, Written)) return;
  if (Atomics.load(ring, IsGone) === 0) Atomics.wait(ring, Written, taken, ms < 0 ? Infinity : ms);
  if (Atomics.load(ring, IsGone) !== 0 && taken === Atomics.load(ring, Written)) throw Gone;
}

/**
 * Counts what sounds, at once, so that the program hears of it before the page has it.
 * @param {Int32Array} sounds
 * @param {any} message
 */
export function noteSound(sounds, message) {
  switch (message.do) {
    case 'speak':
      Atomics.add(sounds, Sounds.Speaking, 1);
      message.turn = Atomics.load(sounds, Sounds.SpeechTurn);
      break;
    case 'hush':
      Atomics.add(sounds, Sounds.SpeechTurn, 1);
      Atomics.store(sounds, Sounds.Speaking, 0);
      break;
    case 'playWave':
      message.turn = Atomics.add(sounds, Sounds.WaveTurn, 1) + 1;
      Atomics.store(sounds, Sounds.Playing, 1);
      break;
    case 'stopWave':
    case 'closeWave':
      Atomics.add(sounds, Sounds.WaveTurn, 1);
      Atomics.store(sounds, Sounds.Playing, 0);
      break;
  }
}

/**
 * Takes note that something has ended, unless it was stopped before.
 * @param {Int32Array} sounds
 * @param {number} place
 * @param {number} turn
 */
export function endSound(sounds, place, turn) {
  const its = place === Sounds.Speaking ? Sounds.SpeechTurn : Sounds.WaveTurn;
  if (Atomics.load(sounds, its) === turn) Atomics.sub(sounds, place, 1);
}
