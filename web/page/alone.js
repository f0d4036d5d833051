// In the place of memory that page and workers share, where a browser has none: messages go to and
// fro, and the program is suspended while it waits for one.
import { Fields } from './ring.js';

/** What the page has told and the core has not taken yet. @type {number[][]} */
const events = [];
let wake = () => {};

/** @param {number[]} event */
export function tell(event) {
  events.push(event);
  wake();
}

/** Resolved when the page has told something or the time is over; less than 0 waits for ever. @param {number} ms */
export const wait = (ms) =>
  new Promise((/** @type {(value?: undefined) => void} */ resolve) => {
    if (events.length > 0) resolve();
    wake = resolve;
    if (ms >= 0) setTimeout(resolve, ms);
  });

/** @param {Int32Array} into @param {number} at */
export function take(into, at) {
  const next = events.shift();
  if (next === undefined) return 0;
  for (let field = 0; field < Fields; ++field) into[at + field] = next[field] ?? 0;
  return 1;
}

/**
 * Reads files of the pack that come through a port.
 * @param {MessagePort} port
 * @param {(waiting: boolean) => void} waits
 */
export function comingFrom(port, waits) {
  const contents = /** @type {Map<number, Uint8Array>} */ (new Map());
  let came = () => {};
  port.onmessage = ({ data }) => {
    contents.set(data.file, data.bytes);
    came();
  };
  /** @param {number} file @param {number} offset @param {Uint8Array} into */
  return async (file, offset, into) => {
    if (!contents.has(file)) {
      waits(true);
      while (!contents.has(file)) await new Promise((resolve) => (came = () => resolve(undefined)));
      waits(false);
    }
    into.set(
      /** @type {Uint8Array} */ (contents.get(file)).subarray(offset).subarray(0, into.length),
    );
  };
}

/** Whether this browser can suspend a program. */
export const canSuspend = () => 'Suspending' in WebAssembly;

/**
 * Starts the core so that it is suspended where it waits.
 * @param {any} imports
 * @param {(instance: {exports: any}) => void} receive
 */
export function instantiate(imports, receive) {
  const { Suspending, promising } = /** @type {any} */ (WebAssembly);
  for (const name of ['talvoraWait', 'talvoraPackRead'])
    imports.env[name] = new Suspending(imports.env[name]);
  void WebAssembly.instantiateStreaming(fetch('talvora.wasm'), imports).then(({ instance }) => {
    const exports = { ...instance.exports };
    for (const name of ['talvoraStart', 'talvoraPump']) exports[name] = promising(exports[name]);
    receive({ exports });
  });
  return {};
}
