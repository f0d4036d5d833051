// Turns what the learner does on the page into the core's events.
import { Kind } from './ring.js';

const TwipsPerNotch = 1620;
const LongPressMs = 600;
const TwoFingersMs = 500;
const TapReach = 12; // pixels that a finger may slip
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
  ContextMenu: 93,
};
/** What is a character of the same number. */
const Controls = ['Backspace', 'Tab', 'Enter', 'Escape'];

const CtrlBit = 2;

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
  if (Controls.includes(key)) return Codes[key];
  if (silent || key.length !== 1) return 0;
  const code = key.charCodeAt(0);
  return code >= 0x20 && code <= 0xff ? code : 0;
}

/**
 * @typedef {object} Finger
 * @property {number} x where it came down, in pixels
 * @property {number} y
 * @property {number} lastY
 * @property {boolean} slipped it has moved on, and scrolls
 */

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
    /** Called when a key that is held on the page was let go. @type {() => void} */
    this.onLetGo = () => {};
    /** The press that a second one may follow. @type {{at: number, x: number, y: number} | null} */
    this.lastPress = null;
    this.fingers = /** @type {Map<number, Finger>} */ (new Map());
    this.longPress = /** @type {ReturnType<typeof setTimeout> | undefined} */ (undefined);
    this.tapIsOver = false;
    this.twoFingersAt = -1;
    this.heldShift = 0;
    stage.addEventListener('pointerdown', (event) => this.down(event));
    stage.addEventListener('pointerup', (event) => this.up(event));
    stage.addEventListener('pointercancel', (event) => this.cancel(event));
    stage.addEventListener('pointermove', (event) => this.move(event));
    stage.addEventListener('contextmenu', (event) => event.preventDefault());
    stage.addEventListener('wheel', (event) => this.wheel(event), { passive: false });
    addEventListener('keydown', (event) => this.key(event, Kind.KeyDown));
    addEventListener('keyup', (event) => this.key(event, Kind.KeyUp));
    addEventListener('blur', () => this.tell([Kind.Blur]));
  }

  /** @param {{clientX: number, clientY: number}} event */
  pointOf(event) {
    const { left, top, scale } = this.placeOf();
    return [Math.floor((event.clientX - left) / scale), Math.floor((event.clientY - top) / scale)];
  }

  /** The buttons of the strip are the page's own. @param {EventTarget | null} target */
  static isOwn(target) {
    return target instanceof Element && target.closest('#strip button') !== null;
  }

  // -- The mouse.

  /** @param {PointerEvent} event */
  down(event) {
    if (Input.isOwn(event.target) || event.button > 2) return;
    event.preventDefault();
    if (event.pointerType === 'touch') {
      this.touch(event);
      return;
    }
    // The mouse alone can keep a word and begin an exercise.
    if (event.button === 1) {
      this.stroke('Enter');
      return;
    }
    // A drag that leaves the window still ends here.
    /** @type {Element} */ (event.currentTarget).setPointerCapture(event.pointerId);
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
    if (event.pointerType === 'touch') {
      this.lift(event);
      return;
    }
    if (Input.isOwn(event.target) || event.button === 1) return;
    const [x, y] = this.pointOf(event);
    this.tell([Kind.Release, x, y, event.button === 2 ? 2 : 1, shiftOf(event)]);
  }

  /** @param {PointerEvent} event */
  move(event) {
    if (event.pointerType === 'touch') {
      this.slip(event);
      return;
    }
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

  // -- Fingers: a tap is a click, a long press the right button, two fingers are Esc, and a finger
  //    that moves on scrolls.

  /** @param {PointerEvent} event */
  touch(event) {
    const { pointerId, clientX, clientY } = event;
    this.fingers.set(pointerId, { x: clientX, y: clientY, lastY: clientY, slipped: false });
    clearTimeout(this.longPress);
    if (this.fingers.size > 1) {
      this.twoFingersAt = event.timeStamp;
      this.tapIsOver = true;
      return;
    }
    this.tapIsOver = false;
    this.twoFingersAt = -1;
    this.longPress = setTimeout(() => {
      this.tapIsOver = true;
      this.click(event, 2, 0);
    }, LongPressMs);
  }

  /** @param {PointerEvent} event */
  slip(event) {
    const finger = this.fingers.get(event.pointerId);
    if (finger === undefined) return;
    const way = Math.hypot(event.clientX - finger.x, event.clientY - finger.y);
    if (!finger.slipped && way <= TapReach) return;
    finger.slipped = true;
    clearTimeout(this.longPress);
    this.twoFingersAt = -1;
    const [x, y] = this.pointOf({ clientX: finger.x, clientY: finger.y });
    const twips = Math.round((finger.lastY - event.clientY) / this.placeOf().scale);
    finger.lastY = event.clientY;
    if (!this.tapIsOver && twips !== 0) this.tell([Kind.Wheel, x, y, twips]);
  }

  /** @param {PointerEvent} event */
  lift(event) {
    const finger = this.fingers.get(event.pointerId);
    this.fingers.delete(event.pointerId);
    clearTimeout(this.longPress);
    if (finger === undefined || this.fingers.size > 0) return;
    if (this.twoFingersAt >= 0 && event.timeStamp - this.twoFingersAt < TwoFingersMs) {
      this.stroke('Escape');
    } else if (!finger.slipped && !this.tapIsOver) {
      this.click(event, 1, this.isSecond(event) ? 1 : 0);
    }
  }

  /** The browser takes the fingers, to zoom. @param {PointerEvent} event */
  cancel(event) {
    clearTimeout(this.longPress);
    this.fingers.delete(event.pointerId);
    this.tapIsOver = true;
    this.twoFingersAt = -1;
  }

  /** @param {PointerEvent} event @param {number} button @param {number} twice */
  click(event, button, twice) {
    const [x, y] = this.pointOf(event);
    const shift = this.heldShift;
    this.tell([Kind.Move, x, y, 0, shift]);
    this.tell([Kind.Press, x, y, button, shift, twice]);
    this.tell([Kind.Release, x, y, button, shift]);
    this.letGo();
  }

  // -- Keys.

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

  /** A whole stroke. @param {string} key */
  stroke(key) {
    const code = codeOf(key);
    const shift = this.heldShift;
    this.tell([Kind.KeyDown, code, characterOf(key, shift !== 0), 0, shift, 0]);
    this.tell([Kind.KeyUp, code, 0, 0, shift]);
    this.letGo();
  }

  /** Ctrl on the page is held until the next tap or key. */
  toggleCtrl() {
    if (this.heldShift !== 0) {
      this.letGo();
      return;
    }
    this.heldShift = CtrlBit;
    this.tell([Kind.KeyDown, Codes.Control, 0, 0, CtrlBit, 0]);
  }

  letGo() {
    if (this.heldShift === 0) return;
    this.heldShift = 0;
    this.tell([Kind.KeyUp, Codes.Control, 0, 0, 0, 0]);
    this.onLetGo();
  }
}
