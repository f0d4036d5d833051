// The page: starts the worker, paints what it tells, and tells it what the learner does.
import { canSuspend } from './alone.js';
import { Carry } from './carry.js';
import { byId, onClick } from './elements.js';
import { FormView } from './form.js';
import { Input } from './input.js';
import { Stage } from './pack.js';
import { Kind, Sounds, leave, makeRing, put } from './ring.js';
import { Sound } from './sound.js';
import { Strip } from './strip.js';
import { Voices } from './voices.js';

const TwipsPerPixel = 15;
const VirtualHeight = 768;
const CaptionPart = 0.03;
const LockTries = 10;
const LockPauseMs = 200;
const Failed = 'Chương trình gặp lỗi nên phải dừng lại.';

/** The virtual screen: 768 pixels high, as wide as the window's shape says within its bounds. */
function virtualScreen() {
  const width = Math.round((VirtualHeight * innerWidth) / Math.max(1, innerHeight));
  return { width: Math.min(Math.max(width, 1024), 1366), height: VirtualHeight };
}

const screen = virtualScreen();
const stage = byId('stage');
const place = { left: 0, top: 0, scale: 1 };

function arrange() {
  const width = screen.width * TwipsPerPixel;
  const height = screen.height * TwipsPerPixel;
  const keys = byId('keys');
  // The bar stands where the screen is longer: below, or at the side.
  const upright = keys.offsetHeight > keys.offsetWidth;
  const wide = innerWidth - (upright ? keys.offsetWidth : 0);
  const high = innerHeight - (upright ? 0 : keys.offsetHeight);
  place.scale = Math.min(wide / width, high / height);
  place.left = (wide - width * place.scale) / 2;
  place.top = (high - height * place.scale) / 2;
  const caption = Math.round(height * CaptionPart);
  Object.assign(stage.style, {
    width: `${width}px`,
    height: `${height}px`,
    transform: `translate(${place.left}px, ${place.top}px) scale(${place.scale})`,
  });
  Object.assign(byId('strip').style, { height: `${caption}px`, fontSize: `${caption * 0.72}px` });
  Object.assign(byId('form').style, {
    top: `${caption}px`,
    width: `${width}px`,
    height: `${height - caption}px`,
  });
}

/** @param {string} text */
function announce(text) {
  byId('told').textContent = text;
}

/** Shows what stands in the way of starting, over everything. @param {string} text */
function showEnd(text) {
  byId('loading').hidden = false;
  byId('progress').hidden = true;
  byId('loadingText').textContent = text;
  const again = document.createElement('button');
  again.textContent = 'Mở lại';
  again.addEventListener('click', () => location.reload());
  byId('loading').append(again);
  again.focus();
}

/** The program's worker and the one that fetches, which get ready while the page does. */
function makeWorkers() {
  const worker = new Worker(new URL('worker.js', import.meta.url), { type: 'module' });
  const fetcher = new Worker(new URL('fetcher.js', import.meta.url), { type: 'module' });
  const { port1, port2 } = new MessageChannel();
  fetcher.postMessage(port2, [port2]);
  return { worker, fetcher, port: port1 };
}

/** What the pack has. @returns {Promise<import('./pack.js').Entry[]>} */
async function listPack() {
  const reply = await fetch('pack/pack.json');
  if (!reply.ok) throw new Error(`pack/pack.json: ${reply.status}`);
  return reply.json();
}

/** Shows how far the pack has come. @param {Worker} fetcher */
function showFetching(fetcher) {
  fetcher.onmessage = ({ data }) => {
    if (data.do === 'progress') {
      const bar = data.stage === Stage.First ? 'progress' : 'waited';
      /** @type {HTMLProgressElement} */ (byId(bar)).value = data.part;
    }
    if (data.do === 'all') stage.dataset.kept = 'all';
    if (data.do === 'stalled')
      byId('loadingText').textContent = 'Chưa có mạng, đang chờ để tải tiếp…';
  };
}

/** The box with a question of the program, or with what it has to tell. */
class Box {
  /** @param {(agreed: number) => void} answer */
  constructor(answer) {
    this.dialog = /** @type {HTMLDialogElement} */ (byId('box'));
    const close = (/** @type {number} */ agreed) => {
      this.dialog.close();
      answer(agreed);
    };
    onClick('yes', () => close(1));
    onClick('no', () => close(0));
    this.dialog.addEventListener('cancel', (event) => {
      event.preventDefault();
      close(0);
    });
  }

  /** @param {any} message @param {boolean} question */
  show(message, question) {
    byId('boxText').textContent = message.text;
    byId('no').hidden = !question;
    byId('yes').textContent = question ? 'Có' : 'OK';
    this.dialog.showModal();
    byId(!question || message.yes ? 'yes' : 'no').focus();
  }
}

/** The buttons of the strip and of the bar. @param {Input} input @param {(event: number[]) => void} tell */
function wireButtons(input, tell) {
  onClick('back', () => input.stroke('Escape'));
  onClick('hint', () => input.stroke('F2'));
  onClick('close', () => tell([Kind.Close]));
  const showCtrl = () => byId('ctrl').setAttribute('aria-pressed', String(input.heldShift !== 0));
  input.onLetGo = showCtrl;
  onClick('ctrl', () => {
    input.toggleCtrl();
    showCtrl();
  });
  for (const button of document.querySelectorAll('#keys [data-key]'))
    button.addEventListener('click', () => input.stroke(button.getAttribute('data-key') ?? ''));
}

/** Tells the program when the page may be gone soon. @param {(event: number[]) => void} tell @param {Int32Array | undefined} events */
function watchLeaving(tell, events) {
  document.addEventListener('visibilitychange', () => {
    if (document.hidden) tell([Kind.Hidden]);
  });
  addEventListener('pagehide', () => events && leave(events));
  // One that comes back as it was has lost its program.
  addEventListener('pageshow', ({ persisted }) => persisted && location.reload());
}

/** @param {ReturnType<typeof makeWorkers>} workers @param {import('./pack.js').Entry[]} entries */
function start({ worker, fetcher, port }, entries) {
  const sharing = globalThis.crossOriginIsolated;
  const ring = sharing ? makeRing() : undefined;
  const events = ring && new Int32Array(ring);
  const soundsSize = Sounds.All * Int32Array.BYTES_PER_ELEMENT;
  const sounds = sharing ? new SharedArrayBuffer(soundsSize) : new ArrayBuffer(soundsSize);
  /** @param {number[]} event */
  const tell = (event) => {
    if (events !== undefined) put(events, event);
    worker.postMessage(sharing ? { do: 'wake' } : { do: 'wake', event });
  };
  const view = new FormView(byId('form'));
  const voices = new Voices();
  const sound = new Sound(
    sounds,
    entries,
    voices,
    sharing ? undefined : (place, turn) => worker.postMessage({ do: 'sounded', place, turn }),
  );
  const strip = new Strip(announce);
  const box = new Box((agreed) => tell([Kind.Answer, agreed]));
  /** @type {(files: Map<string, Uint8Array>) => void} */
  let kept = () => {};
  const carry = new Carry(() => {
    tell([Kind.Carry]);
    return new Promise((resolve) => (kept = resolve));
  });
  const input = new Input(stage, tell, () => place);
  input.open = () => [box, carry, voices].every(({ dialog }) => !dialog.open);
  showFetching(fetcher);
  wireButtons(input, tell);
  watchLeaving(tell, events);

  /** @param {any} picture */
  const paint = (picture) => {
    if (!byId('loading').hidden) {
      byId('loading').hidden = true;
      keepForNextTime();
      sound.prepare();
    }
    if (picture.caption !== undefined) strip.setCaption(picture.caption);
    strip.setPlace(picture.menu);
    byId('voicesOpen').hidden = picture.focus !== 'RAmthanh' || voices.list().length === 0;
    view.paint(picture);
  };
  /** What the program tells; all else sounds. @type {Record<string, (message: any) => void>} */
  const deeds = {
    paint,
    waiting: ({ waiting }) => {
      byId('waiting').hidden = !waiting;
      if (waiting) announce('Đang tải từ điển…');
    },
    notKept: () => strip.warn('Trình duyệt không cho lưu: từ vựng sẽ mất khi đóng trang.'),
    kept: ({ files }) => kept(files),
    ask: (message) => box.show(message, true),
    tell: (message) => box.show(message, false),
    notice: ({ text }) => strip.notice(text),
    pointer: ({ text }) => (byId('form').style.cursor = text),
    help: ({ text }) => strip.setHelp(text),
    say: ({ text }) => announce(text),
    ended: () => showEnd('Talvora đã đóng.'),
    failed: ({ text }) => showEnd(`${Failed} Từ vựng bạn đã lưu vẫn còn. ${text}`),
  };
  worker.onmessage = ({ data }) => (deeds[data.do] ?? ((message) => sound.take(message)))(data);
  worker.onerror = (fault) => showEnd(`${Failed} ${fault.message}`);
  worker.postMessage({ do: 'begin', ring, port, sounds, entries, ...screen }, [port]);
}

/**
 * One page at a time writes the learner's files; a second one says so. A page that is loaded anew may
 * come before the one that it replaces is gone.
 */
async function startAlone() {
  const workers = makeWorkers();
  const listing = listPack();
  // Told when the page has its turn.
  listing.catch(() => undefined);
  const tryOnce = () =>
    navigator.locks.request('talvora-learner', { ifAvailable: true }, async (lock) => {
      if (lock === null) return undefined;
      try {
        start(workers, await listing);
      } catch (fault) {
        showEnd(`Không tải được bộ bài học. ${fault}`);
      }
      return new Promise(() => {});
    });
  for (let left = LockTries; left >= 0; --left) {
    await tryOnce();
    await new Promise((resolve) => setTimeout(resolve, LockPauseMs));
  }
  showEnd('Talvora đang chạy rồi trong một thẻ khác.');
}

/** Asks the browser to keep the page and what the learner owns. */
function keepForNextTime() {
  void navigator.serviceWorker?.register('service.js').catch(() => undefined);
  void navigator.storage?.persist?.().catch(() => undefined);
}

async function main() {
  byId('keys').hidden = !matchMedia('(pointer: coarse)').matches;
  arrange();
  addEventListener('resize', arrange);
  if (globalThis.crossOriginIsolated) {
    void startAlone();
    return;
  }
  // The service worker adds what the memory that page and program share needs.
  const workers = navigator.serviceWorker;
  const registered = await workers?.register('service.js').catch(() => undefined);
  if (registered !== undefined && workers.controller === null) {
    workers.addEventListener('controllerchange', () => location.reload());
  } else if (canSuspend()) {
    void startAlone();
  } else {
    showEnd('Trình duyệt này không cho Talvora chạy.');
  }
}

void main();
