// The page: starts the worker, paints what it tells, and tells it what the learner does.
import { FormView } from './form.js';
import { Input } from './input.js';
import { Kind, Sounds, makeRing, put } from './ring.js';
import { Sound } from './sound.js';
import { Strip } from './strip.js';

const TwipsPerPixel = 15;
const VirtualHeight = 768;
const CaptionPart = 0.03;
const LockTries = 10;
const LockPauseMs = 200;

/** @param {string} id */
const byId = (id) => /** @type {HTMLElement} */ (document.getElementById(id));

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
  const room = innerHeight - byId('keys').offsetHeight;
  place.scale = Math.min(innerWidth / width, room / height);
  place.left = (innerWidth - width * place.scale) / 2;
  place.top = (room - height * place.scale) / 2;
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

/** @param {{right: number, places: number}} verdict */
function verdictText({ right, places }) {
  if (right === places) return 'Đúng';
  return places === 1 ? 'Chưa đúng' : `Đúng ${right} trên ${places} chỗ`;
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

function start() {
  const ring = makeRing();
  const events = new Int32Array(ring);
  const sounds = new SharedArrayBuffer(Sounds.All * Int32Array.BYTES_PER_ELEMENT);
  const worker = new Worker(new URL('worker.js', import.meta.url), { type: 'module' });
  /** @param {number[]} event */
  const tell = (event) => {
    put(events, event);
    worker.postMessage({ do: 'wake' });
  };
  const view = new FormView(byId('form'));
  const input = new Input(stage, tell, () => place);
  const sound = new Sound(new Int32Array(sounds));
  const strip = new Strip(announce);
  const box = /** @type {HTMLDialogElement} */ (byId('box'));
  input.open = () => !box.open;
  /** @param {number} answer */
  const answer = (answer) => {
    box.close();
    tell([Kind.Answer, answer]);
  };
  byId('yes').addEventListener('click', () => answer(1));
  byId('no').addEventListener('click', () => answer(0));
  box.addEventListener('cancel', (event) => {
    event.preventDefault();
    answer(0);
  });
  byId('back').addEventListener('click', () => input.stroke('Escape'));
  byId('hint').addEventListener('click', () => input.stroke('F2'));
  byId('close').addEventListener('click', () => tell([Kind.Close]));
  document.addEventListener('visibilitychange', () => {
    if (document.hidden) tell([Kind.Hidden]);
  });
  const ctrl = byId('ctrl');
  const showCtrl = () => ctrl.setAttribute('aria-pressed', String(input.heldShift !== 0));
  input.onLetGo = showCtrl;
  ctrl.addEventListener('click', () => {
    input.toggleCtrl();
    showCtrl();
  });
  for (const button of document.querySelectorAll('#keys [data-key]')) {
    button.addEventListener('click', () => input.stroke(button.getAttribute('data-key') ?? ''));
  }

  /** @param {any} message @param {boolean} question */
  const showBox = (message, question) => {
    byId('boxText').textContent = message.text;
    byId('no').hidden = !question;
    byId('yes').textContent = question ? 'Có' : 'OK';
    box.showModal();
    byId(!question || message.yes ? 'yes' : 'no').focus();
  };
  worker.onmessage = ({ data }) => {
    switch (data.do) {
      case 'paint':
        byId('loading').hidden = true;
        if (data.caption !== undefined) strip.setCaption(data.caption);
        strip.setPlace(data.menu);
        view.paint(data);
        break;
      case 'progress':
        /** @type {HTMLProgressElement} */ (byId('progress')).value = data.part;
        break;
      case 'notKept':
        strip.notice('Trình duyệt không cho lưu: từ vựng sẽ mất khi đóng trang.');
        break;
      case 'ask':
        showBox(data, true);
        break;
      case 'tell':
        showBox(data, false);
        break;
      case 'wordTaken':
        strip.wordTaken(data);
        break;
      case 'pointer':
        byId('form').style.cursor = data.shape;
        break;
      case 'help':
        strip.setHelp(data.text);
        break;
      case 'say':
        announce(data.text);
        break;
      case 'judged':
        announce(verdictText(data));
        break;
      case 'ended':
        showEnd('Talvora đã đóng.');
        break;
      case 'failed':
        showEnd(`Chương trình gặp lỗi nên phải dừng lại. Từ vựng bạn đã lưu vẫn còn. ${data.text}`);
        break;
      default:
        sound.take(data);
    }
  };
  worker.onerror = (fault) => showEnd(`Chương trình gặp lỗi nên phải dừng lại. ${fault.message}`);
  worker.postMessage({ do: 'begin', ring, sounds, ...screen });
}

/**
 * One page at a time writes the learner's files; a second one says so. A page that is loaded anew may
 * come before the one that it replaces is gone.
 */
async function startAlone(tries = LockTries) {
  const started = await navigator.locks.request(
    'talvora-learner',
    { ifAvailable: true },
    async (lock) => {
      if (lock === null) return false;
      start();
      return new Promise(() => {});
    },
  );
  if (started) return;
  if (tries === 0) {
    showEnd('Talvora đang chạy rồi trong một thẻ khác.');
    return;
  }
  setTimeout(() => void startAlone(tries - 1), LockPauseMs);
}

async function main() {
  byId('keys').hidden = !matchMedia('(pointer: coarse)').matches;
  arrange();
  addEventListener('resize', arrange);
  if ('serviceWorker' in navigator) {
    await navigator.serviceWorker.register('service.js').catch(() => undefined);
    if (!globalThis.crossOriginIsolated && navigator.serviceWorker.controller === null) {
      // The service worker adds what the memory that page and program share needs.
      await navigator.serviceWorker.ready;
      location.reload();
      return;
    }
  }
  if (globalThis.crossOriginIsolated) {
    void startAlone();
  } else {
    showEnd('Trình duyệt này không cho Talvora chạy.');
  }
}

void main();
