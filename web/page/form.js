// Paints what the core tells of the form: an element a control, in a surface an element a line.

/** @typedef {{text: string, face: number, size: number, color: string, under?: boolean, tab?: number}} Run */
/**
 * @typedef {object} Line
 * @property {number} id
 * @property {number} top
 * @property {number} high
 * @property {number} left
 * @property {Run[]} runs
 * @property {number[]} [scale] sideways, up and down, about a point of the line
 * @property {string} [mark]
 * @property {number[]} box
 * @property {number[]} [dot]
 */

/** Top, bottom, edge and text of a button's faces. */
const LitFace = ['#fff3ce', '#f5c768', '#a8761c', '#3a2300'];
/** @type {Record<number, string[]>} */
const RestFaces = {
  14: ['#f5fafd', '#cce0ec', '#7f9fb6', '#122e44'],
  15: ['#fef7f4', '#eed3ca', '#be9284', '#42180e'],
  16: ['#f6fbf6', '#cfe5d8', '#7fa893', '#12342a'],
  17: ['#fefaf0', '#efddbb', '#bfa06a', '#3a2808'],
};
const StillFrame = 18;
const LinePitch = 1.32; // in sizes of the letters
const ThumbPlace = 130; // from the right edge
const ThumbWidth = 100;

/** @param {HTMLElement} element @param {number[]} box */
function place(element, [left, top, width, height]) {
  Object.assign(element.style, {
    left: `${left}px`,
    top: `${top}px`,
    width: `${width}px`,
    height: `${height}px`,
  });
}

/** @param {string} text A letter that English does not have makes it Vietnamese. */
const languageOf = (text) => (/[\u00c0-\u024f\u1ea0-\u1ef9]/.test(text) ? 'vi' : 'en');

/** An element that only shows what is said elsewhere. @param {string} name @param {number[]} box @param {string} colour */
function makeSign(name, box, colour) {
  const sign = document.createElement('div');
  sign.className = name;
  sign.style.color = colour;
  sign.setAttribute('aria-hidden', 'true');
  place(sign, box);
  return sign;
}

/** Makes these an element's children; what stands where it did is left alone. @param {HTMLElement} element @param {Element[]} children */
function setChildren(element, children) {
  const wanted = new Set(children);
  for (const child of [...element.children]) if (!wanted.has(child)) child.remove();
  let next = element.firstElementChild;
  for (const child of children) {
    if (child === next) next = next.nextElementSibling;
    else element.insertBefore(child, next);
  }
}

/** @param {Line} line */
function makeLine(line) {
  const element = document.createElement('div');
  element.className = 'line';
  const largest = line.runs.reduce((one, run) => (run.size > one.size ? run : one), {
    size: 0,
    face: 0,
  });
  element.style.font = `${largest.size}px/${line.high}px F${largest.face}`;
  for (const run of line.runs) {
    const span = document.createElement('span');
    span.textContent = run.text;
    span.style.font = `${run.size}px/1 F${run.face}`;
    span.style.color = run.color;
    if (run.under) span.style.textDecoration = 'underline';
    if (run.tab) {
      span.className = 'tab';
      span.style.width = `${run.tab}px`;
    }
    element.append(span);
  }
  element.lang = languageOf(element.textContent ?? '');
  return element;
}

/** The roles of a surface and its name. @param {HTMLElement} element @param {any} control */
function describe(element, control) {
  if (control.label === '') {
    element.setAttribute('role', 'presentation');
    return;
  }
  const role = control.list ? 'listbox' : control.locked ? 'document' : 'textbox';
  element.setAttribute('role', role);
  element.setAttribute('aria-label', control.label);
  if (role === 'textbox') element.setAttribute('aria-multiline', 'true');
}

/** The elements of a surface by their looks: what was painted with the same one before stays. */
class Parts {
  /** @param {Map<string, HTMLElement>} [before] */
  constructor(before = new Map()) {
    this.before = before;
    this.now = /** @type {Map<string, HTMLElement>} */ (new Map());
  }

  /** Two may look alike. @param {string} look @param {() => HTMLElement} make */
  painted(look, make) {
    const key = this.now.has(look) ? `${look} ${this.now.size}` : look;
    const part = this.before.get(key) ?? make();
    this.now.set(key, part);
    return part;
  }

  /** @param {string} name @param {number[]} box @param {string} [colour] */
  sign(name, box, colour = '') {
    return this.painted(`${name} ${box} ${colour}`, () => makeSign(name, box, colour));
  }
}

/** What a surface paints at its edges: where its text is cut, and the scroll bar. @param {any} control @param {Parts} parts */
function borders(control, parts) {
  const [, , width, height] = control.box;
  const signs = /** @type {HTMLElement[]} */ ([]);
  if (control.cut !== undefined)
    signs.push(parts.sign('fade', [0, control.cut, width, height - control.cut], control.back));
  if (control.thumb !== undefined) {
    const [top, high] = control.thumb;
    signs.push(parts.sign('thumb', [width - ThumbPlace, top, ThumbWidth, high]));
  }
  return signs;
}

export class FormView {
  /** @param {HTMLElement} root */
  constructor(root) {
    this.root = root;
    this.elements = /** @type {Map<string, HTMLElement>} */ (new Map());
    /** Of the surfaces, as they are painted now. @type {WeakMap<HTMLElement, Map<string, HTMLElement>>} */
    this.parts = new WeakMap();
  }

  /** @param {any} message */
  paint(message) {
    for (const control of message.controls) this.paintControl(control);
    // Whoever reads the page reads what has the keyboard; the page's own dialogs keep theirs.
    const free = document.activeElement === null || !document.activeElement.closest('dialog');
    for (const [name, element] of this.elements) {
      const focused = name === message.focus;
      element.classList.toggle('focused', focused);
      const moves = focused && free && !element.hidden && document.activeElement !== element;
      if (moves) element.focus({ preventScroll: true });
      if (element.classList.contains('menu'))
        element.setAttribute('aria-hidden', String(!message.menu));
    }
  }

  /** @param {any} control */
  paintControl(control) {
    let element = this.elements.get(control.name);
    if (!control.shown) {
      if (element !== undefined) element.hidden = true;
      return;
    }
    if (control.kind === 'none') return;
    if (element === undefined) {
      element = document.createElement(control.kind === 'button' ? 'button' : 'div');
      element.id = `c-${control.name}`;
      element.className = control.kind === 'button' ? 'menu' : control.kind;
      element.tabIndex = -1;
      this.elements.set(control.name, element);
      this.stack(element, control.depth);
    }
    element.hidden = false;
    place(element, control.box);
    if (control.back !== undefined) element.style.background = control.back;
    this[/** @type {'surface'} */ (control.kind)]?.(element, control);
  }

  /** Elements stand in the order of the controls. @param {HTMLElement} element @param {number} depth */
  stack(element, depth) {
    element.style.zIndex = String(depth);
    const inFront = [...this.root.children].find(
      (other) => other instanceof HTMLElement && Number(other.style.zIndex) > depth,
    );
    this.root.insertBefore(element, inFront ?? null);
  }

  /** @param {HTMLElement} element @param {any} control */
  surface(element, control) {
    element.classList.toggle('plate', control.name.startsWith('Rnen'));
    element.classList.toggle('hintbar', control.name === 'RDOS');
    element.classList.toggle('dark', control.dark);
    describe(element, control);
    const parts = new Parts(this.parts.get(element));
    const { under, rows, over, current } = this.layers(element, control.lines, parts);
    if (control.list) this.describeRows(element, rows, current);
    setChildren(element, [...under, ...rows, ...over, ...borders(control, parts)]);
    this.parts.set(element, parts.now);
  }

  /**
   * The lines of a surface, what is painted under and over them, and the box of the current row.
   * @param {HTMLElement} element
   * @param {Line[]} lines
   * @param {Parts} parts
   */
  layers(element, lines, parts) {
    const under = /** @type {HTMLElement[]} */ ([]);
    const rows = /** @type {HTMLElement[]} */ ([]);
    const over = /** @type {HTMLElement[]} */ ([]);
    const current = lines.findLast((line) => line.mark === 'current')?.box;
    for (const line of lines) {
      if (line.mark !== undefined) {
        const layer = line.mark === 'caret' ? over : under;
        layer.push(parts.sign(`mark ${line.mark}`, line.box));
        continue;
      }
      if (line.dot !== undefined) over.push(parts.sign('dot', line.dot, line.runs[0]?.color));
      const row = parts.painted(`${line.id}`, () => makeLine(line));
      this.placeLine(row, line);
      row.id = `${element.id}-${rows.length}`;
      rows.push(row);
    }
    return { under, rows, over, current };
  }

  /** @param {HTMLElement} row @param {Line} line */
  placeLine(row, line) {
    row.style.top = `${line.top}px`;
    row.style.left = `${line.left}px`;
    row.style.height = `${line.high}px`;
    if (line.scale === undefined) return;
    const [narrower, lower, x, y] = line.scale;
    row.style.transform = `scale(${narrower}, ${lower})`;
    row.style.transformOrigin = `${x}px ${y}px`;
  }

  /**
   * The rows of a list, and which of them the keys act on.
   * @param {HTMLElement} element
   * @param {HTMLElement[]} rows
   * @param {number[] | undefined} current
   */
  describeRows(element, rows, current) {
    element.removeAttribute('aria-activedescendant');
    for (const row of rows.filter((each) => each.textContent?.trim() !== '')) {
      const top = parseFloat(row.style.top);
      const acted = current !== undefined && top >= current[1] && top < current[1] + current[3];
      row.setAttribute('role', 'option');
      row.setAttribute('aria-selected', String(acted));
      if (acted) element.setAttribute('aria-activedescendant', row.id);
    }
  }

  /** @param {HTMLElement} element @param {any} control */
  button(element, control) {
    const rest = RestFaces[control.picture];
    const names = ['--top', '--bottom', '--edge', '--text'];
    names.forEach((name, at) => element.style.setProperty(name, (rest ?? LitFace)[at]));
    const light = control.picture === StillFrame ? 0.5 : 0.5 + (control.picture - 7.5) * 0.065;
    element.style.setProperty('--light', rest === undefined ? `${light * 100}%` : '-100%');
    if (element.textContent !== control.text) element.textContent = control.text;
    const room = 0.9 * control.box[3];
    element.style.font = `${Math.min(control.size, room / 1.3)}px/1 F${control.face}`;
    if (control.english) element.lang = 'en';
    element.title = control.english ? control.meaning : '';
    element.setAttribute('aria-description', control.meaning);
  }

  /** @param {HTMLElement} element @param {any} control */
  label(element, control) {
    element.style.color = control.color;
    const part = Math.min(
      1,
      control.box[2] / Math.max(1, control.wide),
      control.box[3] / (control.size * LinePitch),
    );
    element.style.font = `${control.size * part}px/1 F${control.face}`;
    element.textContent = control.text;
  }

  /** @param {HTMLElement} element @param {any} control */
  panel(element, control) {
    element.style.opacity = String(control.alpha);
  }
}
