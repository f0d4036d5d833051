// Paints what the core tells of the form: an element a control, in a surface an element a line.

/** @typedef {{text: string, face: number, size: number, color: string, under?: boolean, tab?: number}} Run */
/**
 * @typedef {object} Line
 * @property {number} [id]
 * @property {number} top
 * @property {number} high
 * @property {number} left
 * @property {Run[]} runs
 * @property {string} [mark]
 * @property {number[]} box
 * @property {number[]} [dot]
 */

const Faces = {
  lit: ['#fff3ce', '#f5c768', '#a8761c', '#3a2300'],
  14: ['#f5fafd', '#cce0ec', '#7f9fb6', '#122e44'],
  15: ['#fef7f4', '#eed3ca', '#be9284', '#42180e'],
  16: ['#f6fbf6', '#cfe5d8', '#7fa893', '#12342a'],
  17: ['#fefaf0', '#efddbb', '#bfa06a', '#3a2808'],
};
const StillFrame = 18;

/** What the buttons of the right column, whose captions are English, are about. */
const Meanings = [
  'Đọc bài tiếng Anh, bấm vào từ để tra nghĩa và nghe',
  'Những từ bạn đã lưu, kèm câu chứa từ',
  'Các bài văn phạm; bấm phải để đánh dấu bài cần luyện',
  'Nghe rồi chọn câu đúng',
  'Bài đọc được phân tích từng từ',
  'Phần này đang xây dựng',
  'Các bài hội thoại để luyện nói',
  'Bật tắt âm thanh và chọn tốc độ đọc',
  'Cách dùng chương trình và cách học',
  'Bài tập về mạo từ: a, an, the',
  'Bài tập về câu điều kiện',
  'Bài tập về các thì',
  'Bài tập về giới từ và thành ngữ',
  'Bài kiểm tra sơ cấp A',
  'Bài kiểm tra sơ cấp B',
  'Bài thi thử kiểu TOEFL',
  'Từ vựng cho kỳ thi TOEFL',
  'Từ vựng trình độ B',
];

/** @type {Record<string, string>} */
const PageNames = {
  R1: 'Danh sách bài',
  R2: 'Bài đọc',
  Rchon: 'Từ vựng của bạn',
  RHD: 'Nghĩa của từ',
  RTD: 'Danh sách từ để tra',
  RVP1: 'Danh sách bài văn phạm',
  RVP2: 'Bài văn phạm',
  RN1: 'Danh sách đề bài',
  RN2: 'Bài luyện nghe',
  Rviet: 'Nghe viết',
  RW1: 'Danh sách bài luyện viết',
  RW2: 'Bài luyện viết',
  RDT: 'Bài tập điền từ',
  RABCD: 'Bài tập chọn câu đúng',
  Rsai: 'Bài tập tìm lỗi',
  Rxep: 'Bài tập xếp từ',
  RHDBT: 'Giải thích',
  RDOS: 'Gợi ý',
  RAmthanh: 'Cài đặt âm thanh',
  Rcachhoc: 'Hướng dẫn cách học',
};

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

export class FormView {
  /** @param {HTMLElement} root */
  constructor(root) {
    this.root = root;
    /** @type {Map<string, HTMLElement>} */
    this.elements = new Map();
    /** @type {WeakMap<HTMLElement, Map<number, HTMLElement>>} */
    this.lines = new WeakMap();
  }

  /** @param {any} message */
  paint(message) {
    for (const control of message.controls) this.paintControl(control);
    for (const [name, element] of this.elements)
      element.classList.toggle('focused', name === message.focus);
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
      if (control.kind === 'button') element.tabIndex = -1;
      this.elements.set(control.name, element);
      this.stack(element, control.depth);
    }
    element.hidden = false;
    place(element, control.box);
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
    element.style.background = control.back;
    const plate = control.name.startsWith('Rnen');
    element.classList.toggle('plate', plate);
    element.classList.toggle('hintbar', control.name === 'RDOS');
    const name = PageNames[control.name];
    if (name !== undefined) {
      element.setAttribute('role', control.locked ? 'document' : 'textbox');
      element.setAttribute('aria-label', name);
      if (!control.locked) element.setAttribute('aria-multiline', 'true');
    } else {
      element.setAttribute('role', 'presentation');
    }
    const before = this.lines.get(element) ?? new Map();
    /** @type {Map<number, HTMLElement>} */
    const now = new Map();
    /** @type {HTMLElement[]} */
    const children = [];
    for (const line of /** @type {Line[]} */ (control.lines)) {
      if (line.mark !== undefined) {
        const mark = document.createElement('div');
        mark.className = `mark ${line.mark}`;
        place(mark, line.box);
        children.unshift(mark);
        continue;
      }
      const id = line.id ?? 0;
      const row = before.get(id) ?? makeLine(line);
      row.style.top = `${line.top}px`;
      row.style.left = `${line.left}px`;
      row.style.height = `${line.high}px`;
      now.set(id, row);
      if (line.dot !== undefined) {
        const dot = document.createElement('div');
        dot.className = 'dot';
        dot.style.color = line.runs[0]?.color ?? '#000';
        place(dot, line.dot);
        children.push(dot);
      }
      children.push(row);
    }
    if (control.scroll !== undefined) children.push(this.thumb(control));
    this.lines.set(element, now);
    element.replaceChildren(...children);
  }

  /** @param {any} control */
  thumb(control) {
    const [first, inView, all] = control.scroll;
    const height = control.box[3];
    const length = Math.min(Math.max((inView / all) * height, 480), height);
    const thumb = document.createElement('div');
    thumb.className = 'thumb';
    thumb.style.height = `${length}px`;
    thumb.style.top = `${(Math.min(first / Math.max(1, all - inView), 1) * (height - length)).toFixed(1)}px`;
    return thumb;
  }

  /** @param {HTMLElement} element @param {any} control */
  button(element, control) {
    const face = Faces[/** @type {14} */ (control.picture)] ?? Faces.lit;
    const names = ['--top', '--bottom', '--edge', '--text'];
    names.forEach((name, at) => element.style.setProperty(name, face[at]));
    const lit = face === Faces.lit;
    const light = control.picture === StillFrame ? 0.5 : 0.5 + (control.picture - 7.5) * 0.065;
    element.style.setProperty('--light', lit ? `${light * 100}%` : '-100%');
    if (element.textContent !== control.text) element.textContent = control.text;
    const room = 0.9 * control.box[3];
    element.style.font = `${Math.min(control.size, room / 1.3)}px/1 F${control.face}`;
    element.title = Meanings[control.number - 1] ?? '';
  }

  /** @param {HTMLElement} element @param {any} control */
  label(element, control) {
    element.style.background = control.back;
    element.style.color = control.color;
    const part = Math.min(
      1,
      control.box[2] / Math.max(1, control.wide),
      control.box[3] / (control.size * 1.32),
    );
    element.style.font = `${control.size * part}px/1 F${control.face}`;
    element.textContent = control.text;
  }

  /** @param {HTMLElement} element @param {any} control */
  panel(element, control) {
    element.style.background = control.back;
    element.style.opacity = String(control.alpha);
  }

  /** @param {HTMLElement} element @param {any} control */
  frame(element, control) {
    element.style.background = control.back;
  }
}
