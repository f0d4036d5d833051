// Turns what the learner does on the page into the core's events.
import { Kind } from './ring.js';

const TwipsPerNotch = 1620;
const LongPressMs = 600;
const DoubleClickMs = 400;
const DoubleClickReach = 5; // pixels between the two presses of a mouse
const DoubleTapReach = 30; // of a finger

/** Key codes that the core knows, by the browser's names. @type {Record<string, number>} */
const Codes = {
  Backspace: 8,
  Tab: 9,
  Enter: 13,
  Shift: 16,
  Control: 17,
  Alt: 18,
  Escape: 27,
  ' ': 32,
  PageUp: 33,
  PageDown: 34,
  End: 35,
  Home: 36,
  ArrowLeft: 37,
  ArrowUp: 38,
  ArrowRight: 39,
  ArrowDown: 40,
  Delete: 46,
};
/** @type {Record<string, number>} */
const Characters = { Enter: 13, Escape: 27, Backspace: 8, Tab: 9 };

/** @param {KeyboardEvent | MouseEvent} event */
const shiftOf = (event) =>
  (event.shiftKey ? 1 : 0) | (event.ctrlKey ? 2 : 0) | (event.altKey ? 4 : 0);

/**
 * The letter of a key, also where a Vietnamese typing method is at work on it: English is typed.
 * @param {KeyboardEvent} event
 */
export function letterOf(event) {
  const composing = event.isComposing || event.key === 'Process' || event.key === 'Dead';
  if (!composing) return event.key;
  const letter = /^(?:Key|Digit)(.)$/.exec(event.code)?.[1] ?? '';
  return event.shiftKey ? letter : letter.toLowerCase();
}

/** @param {string} key */
export function codeOf(key) {
  if (key in Codes) return Codes[key];
  const f = /^F(\d{1,2})$/.exec(key);
  if (f !== null) return 111 + Number(f[1]);
  return key.length === 1 && key.charCodeAt(0) < 0x100 ? key.toUpperCase().charCodeAt(0) : 0;
}

/** @param {string} key @param {boolean} silent */
export function characterOf(key, silent) {
  if (key in Characters) return Characters[key];
  if (silent || key.length !== 1) return 0;
  const code = key.charCodeAt(0);
  return code >= 0x20 && code <= 0xff ? code : 0;
}

export class Input {
  /**
   * @param {HTMLElement} stage
   * @param {(event: number[]) => void} tell
   * @param {() => {left: number, top: number, scale: number}} placeOf of the virtual screen
   */
  constructor(stage, tell, placeOf) {
    this.tell = tell;
    this.placeOf = placeOf;
    this.open = () => true;
    /** The press that a second one may follow. @type {{at: number, x: number, y: number} | null} */
    this.lastPress = null;
    /** @type {ReturnType<typeof setTimeout> | undefined} */
    this.longPress = undefined;
    this.rightGiven = false;
    stage.addEventListener('pointerdown', (event) => this.down(event));
    stage.addEventListener('pointerup', (event) => this.up(event));
    stage.addEventListener('pointermove', (event) => this.move(event));
    stage.addEventListener('contextmenu', (event) => event.preventDefault());
    stage.addEventListener('wheel', (event) => this.wheel(event), { passive: false });
    addEventListener('keydown', (event) => this.key(event, Kind.KeyDown));
    addEventListener('keyup', (event) => this.key(event, Kind.KeyUp));
    addEventListener('blur', () => this.tell([Kind.Blur]));
  }

  /** @param {MouseEvent} event */
  pointOf(event) {
    const { left, top, scale } = this.placeOf();
    return [Math.floor((event.clientX - left) / scale), Math.floor((event.clientY - top) / scale)];
  }

  /** @param {EventTarget | null} target */
  static isOwn(target) {
    return target instanceof Element && target.closest('#strip button') !== null;
  }

  /** @param {PointerEvent} event */
  down(event) {
    if (Input.isOwn(event.target) || event.button > 2) return;
    event.preventDefault();
    // The mouse alone can keep a word and begin an exercise.
    if (event.button === 1) {
      this.stroke('Enter');
      return;
    }
    if (event.pointerType === 'touch') {
      if (!event.isPrimary) {
        // A second finger leads back.
        this.stroke('Escape');
        this.rightGiven = true;
        return;
      }
      this.rightGiven = false;
      this.longPress = setTimeout(() => {
        this.rightGiven = true;
        this.click(event, 2, 0);
      }, LongPressMs);
      return;
    }
    const [x, y] = this.pointOf(event);
    const twice = event.button === 0 && this.isSecond(event);
    this.tell([Kind.Press, x, y, event.button === 2 ? 2 : 1, shiftOf(event), twice ? 1 : 0]);
  }

  /** Whether a press is the second one of a double click. @param {PointerEvent} event */
  isSecond(event) {
    const reach = event.pointerType === 'touch' ? DoubleTapReach : DoubleClickReach;
    const first = this.lastPress;
    const second =
      first !== null &&
      event.timeStamp - first.at < DoubleClickMs &&
      Math.hypot(event.clientX - first.x, event.clientY - first.y) <= reach;
    this.lastPress = second ? null : { at: event.timeStamp, x: event.clientX, y: event.clientY };
    return second;
  }

  /** @param {PointerEvent} event */
  up(event) {
    if (Input.isOwn(event.target) || event.button === 1) return;
    clearTimeout(this.longPress);
    if (event.pointerType === 'touch') {
      if (event.isPrimary && !this.rightGiven) this.click(event, 1, this.isSecond(event) ? 1 : 0);
      return;
    }
    const [x, y] = this.pointOf(event);
    this.tell([Kind.Release, x, y, event.button === 2 ? 2 : 1, shiftOf(event)]);
  }

  /** @param {PointerEvent} event @param {number} button @param {number} twice */
  click(event, button, twice) {
    const [x, y] = this.pointOf(event);
    this.tell([Kind.Move, x, y, 0, 0]);
    this.tell([Kind.Press, x, y, button, 0, twice]);
    this.tell([Kind.Release, x, y, button, 0]);
  }

  /** @param {PointerEvent} event */
  move(event) {
    if (event.pointerType === 'touch') return;
    const [x, y] = this.pointOf(event);
    this.tell([Kind.Move, x, y, event.buttons, shiftOf(event)]);
  }

  /** @param {WheelEvent} event */
  wheel(event) {
    // With Ctrl it is the browser's zoom.
    if (event.ctrlKey) return;
    event.preventDefault();
    const [x, y] = this.pointOf(event);
    const notches = event.deltaMode === 0 ? event.deltaY / 100 : event.deltaY / 3;
    this.tell([Kind.Wheel, x, y, Math.round(notches * TwipsPerNotch)]);
  }

  /** @param {KeyboardEvent} event @param {number} kind */
  key(event, kind) {
    if (!this.open()) return;
    // The browser's own: finding in the page, zoom, reload.
    if (event.ctrlKey && /^[fr+\-=0]$/i.test(event.key)) return;
    if (event.metaKey || /^F(5|11|12)$/.test(event.key)) return;
    const key = letterOf(event);
    const code = codeOf(key);
    if (code === 0) return;
    event.preventDefault();
    const character = characterOf(key, event.ctrlKey || event.altKey);
    this.tell([kind, code, character, 0, shiftOf(event), event.repeat ? 1 : 0]);
  }

  /** A whole stroke. @param {string} key @param {number} shift */
  stroke(key, shift = 0) {
    const code = codeOf(key);
    this.tell([Kind.KeyDown, code, characterOf(key, shift !== 0), 0, shift, 0]);
    this.tell([Kind.KeyUp, code, 0, 0, shift]);
  }
}
