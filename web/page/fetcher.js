// The worker that fetches the pack and keeps it for the next visit: first what the menu needs, then
// the rest, and last what only sounds, so that it is there without a network.
import { Read, Stage, keep } from './pack.js';
import { dropOtherReplies, keepReply, replyFor } from './store.js';

const RetryMs = 2000;

/** Does what may fail without a network, until there is one. @param {() => Promise<unknown>} deed */
async function insist(deed) {
  for (;;) {
    try {
      return await deed();
    } catch (fault) {
      postMessage({ do: 'stalled', text: String(fault) });
      await new Promise((resolve) => setTimeout(resolve, RetryMs));
    }
  }
}

/**
 * Unpacks a file into its room as it comes.
 * @param {import('./pack.js').Entry} entry
 * @param {Uint8Array} bytes
 * @param {(count: number) => void} came
 */
async function fetchInto(entry, bytes, came) {
  const { body } = await replyFor(entry.file);
  const counted = new TransformStream({
    transform(chunk, out) {
      came(chunk.length);
      out.enqueue(chunk);
    },
  });
  const coming = /** @type {ReadableStream} */ (body).pipeThrough(counted);
  const reader = coming.pipeThrough(new DecompressionStream('gzip')).getReader();
  let at = 0;
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    if (at + part.value.length > bytes.length) throw new Error(`${entry.file}: too long`);
    bytes.set(part.value, at);
    at += part.value.length;
  }
  if (at !== entry.size) throw new Error(`${entry.file}: cut short`);
}

/** @param {import('./pack.js').Order} order @param {MessagePort} port @param {number} stage */
async function fetchStage({ entries, wanted, contents, arrived }, port, stage) {
  const files = wanted.filter((file) => entries[file].stage === stage);
  if (files.length === 0) return;
  const signs = new Int32Array(arrived);
  const all = files.reduce((sum, file) => sum + entries[file].packed, 0);
  let came = 0;
  const fetched = /** @type {Map<number, Uint8Array>} */ (new Map());
  /** @param {number} file */
  const fetchFile = async (file) => {
    const bytes = new Uint8Array(contents[file] ?? entries[file].size);
    await insist(() =>
      fetchInto(entries[file], bytes, (count) => {
        came += count;
        postMessage({ do: 'progress', stage, part: Math.min(1, came / all) });
      }),
    );
    fetched.set(file, bytes);
    Atomics.store(signs, file, 1);
    Atomics.notify(signs, file);
    // What is not shared is sent.
    if (contents[file] === undefined) port.postMessage({ file, bytes });
  };
  await Promise.all(files.map(fetchFile));
  // A store without room keeps nothing, and the next visit fetches again.
  await keep(entries, stage, fetched).catch(() => undefined);
}

/** @param {import('./pack.js').Order} order @param {MessagePort} port */
async function fetchAll(order, port) {
  for (const stage of Read) await fetchStage(order, port, stage);
  const sounding = order.entries.filter(({ stage }) => !Read.includes(stage));
  for (const { file, stage } of sounding)
    if (stage === Stage.Kept) await insist(() => keepReply(file));
  await dropOtherReplies(sounding.map(({ file }) => file));
  postMessage({ do: 'all' });
}

self.onmessage = ({ data: port }) => {
  port.onmessage = (/** @type {MessageEvent} */ { data }) => void fetchAll(data, port);
};
