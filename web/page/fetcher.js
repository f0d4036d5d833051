// The worker that fetches the pack and keeps it for the next visit: first what the menu needs, then
// the rest, and last what only sounds, so that it is there without a network.
import { Stage } from './pack.js';
import { dropOthers, replyOf } from './store.js';

const RetryMs = 2000;

/**
 * @param {import('./pack.js').Entry} entry
 * @param {ArrayBufferLike} content
 * @param {(bytes: number) => void} came
 */
async function fetchOne(entry, content, came) {
  const { body } = await replyOf(entry.file);
  const counted = new TransformStream({
    transform(chunk, out) {
      came(chunk.length);
      out.enqueue(chunk);
    },
  });
  const coming = /** @type {ReadableStream} */ (body).pipeThrough(counted);
  if (entry.stage === Stage.Kept) {
    await coming.pipeTo(new WritableStream());
    return;
  }
  const bytes = new Uint8Array(content);
  let at = 0;
  const reader = coming.pipeThrough(new DecompressionStream('gzip')).getReader();
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    if (at + part.value.length > bytes.length) throw new Error(`${entry.file}: too long`);
    bytes.set(part.value, at);
    at += part.value.length;
  }
  if (at !== entry.size) throw new Error(`${entry.file}: cut short`);
}

/** @typedef {import('./pack.js').Pack & {port?: MessagePort}} Order */

/** @param {Order} order @param {number} stage */
async function fetchStage({ entries, contents, arrived, port }, stage) {
  const signs = new Int32Array(arrived);
  const wanted = entries.map((_, file) => file).filter((file) => entries[file].stage === stage);
  const all = wanted.reduce((sum, file) => sum + entries[file].packed, 0);
  let came = 0;
  /** @param {number} file */
  const fetchFile = async (file) => {
    // What is not shared is sent.
    const content = contents[file] ?? new ArrayBuffer(entries[file].size);
    for (let there = false; !there;) {
      let its = 0;
      try {
        await fetchOne(entries[file], content, (bytes) => {
          its += bytes;
          came += bytes;
          postMessage({ do: 'progress', stage, part: Math.min(1, came / all) });
        });
        there = true;
      } catch (fault) {
        // Without a network for a while: it goes on when there is one.
        postMessage({ do: 'stalled', text: String(fault) });
        came -= its;
        await new Promise((resolve) => setTimeout(resolve, RetryMs));
      }
    }
    Atomics.store(signs, file, 1);
    Atomics.notify(signs, file);
    port?.postMessage({ file, bytes: new Uint8Array(content) });
  };
  await Promise.all(wanted.map(fetchFile));
}

/** @param {Order} pack */
async function fetchAll(pack) {
  for (const stage of [Stage.First, Stage.Late, Stage.Kept]) await fetchStage(pack, stage);
  await dropOthers(pack.entries.map(({ file }) => file));
  postMessage({ do: 'all' });
}

self.onmessage = ({ data }) => void fetchAll(data);
